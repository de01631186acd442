<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ActivationTexts</name>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences, one after the other.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>De-activate %1?</source>
        <translation>%1 비활성화할까요?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>비활성화</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>폴더 선택…</translation>
    </message>
    <message>
        <source>The reason is not known.</source>
        <translation>이유를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1.</translation>
    </message>
    <message numerus="yes">
        <source>%n Fonts</source>
        <translation>
            <numerusform>글꼴 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>글꼴 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names.</extracomment>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the names of a list.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>The names of a list, and the last of them.</extracomment>
        <translation>%1 및 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more families</source>
        <extracomment>Families that a list of names does not name.</extracomment>
        <translation>
            <numerusform>그 밖의 패밀리 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. Activating makes them available too.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>이 글꼴의 파일에는 %1도 들어 있습니다. 활성화하면 함께 쓸 수 있게 됩니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. Activating makes them available too.</source>
        <translation>
            <numerusform>이 글꼴들의 파일에는 %1도 들어 있습니다. 활성화하면 함께 쓸 수 있게 됩니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. De-activating removes all of them.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>이 글꼴의 파일에는 %1도 들어 있습니다. 비활성화하면 모두 제거됩니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. De-activating removes all of them.</source>
        <translation>
            <numerusform>이 글꼴들의 파일에는 %1도 들어 있습니다. 비활성화하면 모두 제거됩니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to activate</source>
        <translation>활성화할 글꼴 없음</translation>
    </message>
    <message>
        <source>Every user-controllable font in %1 is already active.</source>
        <translation>%1에서 직접 켤 수 있는 글꼴은 모두 이미 활성 상태입니다.</translation>
    </message>
    <message>
        <source>Every selected font is already active.</source>
        <translation>선택한 글꼴은 모두 이미 활성 상태입니다.</translation>
    </message>
    <message>
        <source>Nothing to de-activate</source>
        <translation>비활성화할 글꼴 없음</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in %1.</source>
        <translation>%1에는 직접 끌 수 있는 활성 글꼴이 없습니다.</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in the selection.</source>
        <translation>선택한 글꼴 중에 직접 끌 수 있는 활성 글꼴이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to activate.</source>
        <translation>
            <numerusform>파일 %n개를 활성화하지 못했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Activation of %1 stopped</source>
        <translation>%1 활성화 중단됨</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are available in every app on your Mac.</source>
        <translation>
            <numerusform>파일 %2개 중 %1개를 이 컴퓨터의 모든 앱에서 쓸 수 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully activate %1</source>
        <translation>%1 활성화를 끝까지 하지 못했습니다</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <translation>%1 설치됨</translation>
    </message>
    <message>
        <source>Now available in every app on your Mac.</source>
        <translation>이제 이 컴퓨터의 모든 앱에서 쓸 수 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to de-activate.</source>
        <translation>
            <numerusform>파일 %n개를 비활성화하지 못했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activation of %1 stopped</source>
        <translation>%1 비활성화 중단됨</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are no longer available system-wide.</source>
        <translation>
            <numerusform>파일 %2개 중 %1개를 더는 시스템 전체에서 쓸 수 없습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully de-activate %1</source>
        <translation>%1 비활성화를 끝까지 하지 못했습니다</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 제거됨</translation>
    </message>
    <message>
        <source>No longer available system-wide.</source>
        <translation>더는 시스템 전체에서 쓸 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be brought back.</source>
        <translation>
            <numerusform>파일 %n개를 복원하지 못했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are back.</source>
        <translation>
            <numerusform>파일 %2개 중 %1개를 복원했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully bring back %1</source>
        <translation>%1 복원을 끝까지 하지 못했습니다</translation>
    </message>
    <message>
        <source>The font will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>이 글꼴을 더는 시스템 전체에서 쓸 수 없게 됩니다. 원본 글꼴 파일은 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>The fonts will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>이 글꼴들을 더는 시스템 전체에서 쓸 수 없게 됩니다. 원본 글꼴 파일은 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font files are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>Lorva로 설치한 글꼴이 아니어서 %1의 원본 글꼴 파일이 어디에 있는지 알 수 없습니다. 파일을 옮겨 둘 폴더를 선택하세요. 그러지 않으면 하나뿐인 사본을 잃게 됩니다.</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install some of these fonts, so we don&apos;t know where the originals are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>일부 글꼴은 Lorva로 설치하지 않아 원본이 어디에 있는지 알 수 없습니다. 파일을 옮겨 둘 폴더를 선택하세요. 그러지 않으면 하나뿐인 사본을 잃게 됩니다.</translation>
    </message>
    <message>
        <source>The style will no longer be available system-wide.</source>
        <translation>이 스타일을 더는 시스템 전체에서 쓸 수 없게 됩니다.</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font file is. Choose a folder to move it to, otherwise you&apos;d lose your only copy.</source>
        <translation>Lorva로 설치한 글꼴이 아니어서 %1의 원본 글꼴 파일이 어디에 있는지 알 수 없습니다. 파일을 옮겨 둘 폴더를 선택하세요. 그러지 않으면 하나뿐인 사본을 잃게 됩니다.</translation>
    </message>
    <message>
        <source>Choose a folder for the font files that are de-activated.</source>
        <translation>비활성화하는 글꼴 파일을 둘 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>Move Here</source>
        <translation>여기로 이동</translation>
    </message>
    <message>
        <source>Activating %1…</source>
        <translation>%1 활성화 중…</translation>
    </message>
    <message numerus="yes">
        <source>Activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>%1 활성화 중… 파일 %3개 중 %2개</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activating %1…</source>
        <translation>%1 비활성화 중…</translation>
    </message>
    <message numerus="yes">
        <source>De-activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>%1 비활성화 중… 파일 %3개 중 %2개</numerusform>
        </translation>
    </message>
    <message>
        <source>Bringing back %1…</source>
        <translation>%1 복원 중…</translation>
    </message>
    <message numerus="yes">
        <source>Bringing back %1… %2 of %3 files</source>
        <translation>
            <numerusform>%1 복원 중… 파일 %3개 중 %2개</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t read the activation history</source>
        <translation>활성화 기록을 읽지 못했습니다</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the list</source>
        <translation>목록을 저장하지 못했습니다</translation>
    </message>
    <message>
        <source>Files That Failed</source>
        <translation>실패한 파일</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be switched on or off.</source>
        <translation>
            <numerusform>파일 %n개를 켜거나 끄지 못했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file has failed.</source>
        <translation>실패한 파일이 없습니다.</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>cannot write %1: not a regular file</source>
        <translation>%1을(를) 쓸 수 없습니다: 일반 파일이 아닙니다</translation>
    </message>
</context>
<context>
    <name>BackgroundImagePanel</name>
    <message>
        <source>White Text</source>
        <translation>흰색 글자</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>검은색 글자</translation>
    </message>
    <message>
        <source>Custom Text Color</source>
        <translation>사용자 지정 글자 색상</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>글자 색상</translation>
    </message>
    <message>
        <source>Your Image</source>
        <translation>내 이미지</translation>
    </message>
    <message>
        <source>Add Image…</source>
        <translation>이미지 추가…</translation>
    </message>
</context>
<context>
    <name>BackgroundImageStore</name>
    <message>
        <source>The image is not there</source>
        <translation>이미지가 없습니다</translation>
    </message>
    <message>
        <source>The file is too large for a background</source>
        <translation>파일이 너무 커서 배경으로 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>BackgroundImages</name>
    <message>
        <source>Dusk</source>
        <extracomment>Background images, named by what they remind of.</extracomment>
        <translation>황혼</translation>
    </message>
    <message>
        <source>Dawn</source>
        <translation>새벽</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>불씨</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>종이</translation>
    </message>
    <message>
        <source>Lagoon</source>
        <translation>라군</translation>
    </message>
    <message>
        <source>Fern</source>
        <translation>고사리</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>청사진</translation>
    </message>
    <message>
        <source>Terrazzo</source>
        <translation>테라초</translation>
    </message>
    <message>
        <source>Ink Wash</source>
        <translation>수묵</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>자두</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>오로라</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>흑연</translation>
    </message>
</context>
<context>
    <name>BrowserActions</name>
    <message>
        <source>There is no place to keep images</source>
        <translation>이미지를 보관할 곳이 없습니다</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>글꼴 %n개 활성화…</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>비활성화</translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>글꼴 %n개 비활성화</numerusform>
        </translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>활성화…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>나머지 스타일 활성화…</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The style category of a family: Serif, Script and so on.</extracomment>
        <translation>스타일</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>모음</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>파운드리</translation>
    </message>
    <message>
        <source>None</source>
        <comment>style</comment>
        <extracomment>The family has no style category.</extracomment>
        <translation>없음</translation>
    </message>
    <message>
        <source>None</source>
        <comment>foundry</comment>
        <extracomment>The family has no foundry.</extracomment>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>CharacterBlocks</name>
    <message>
        <source>Latin</source>
        <translation>라틴 문자</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Punctuation &amp; Symbols</source>
        <translation>문장 부호 및 기호</translation>
    </message>
    <message>
        <source>Kana</source>
        <translation>가나</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>한글</translation>
    </message>
    <message>
        <source>Han</source>
        <extracomment>The Chinese characters.</extracomment>
        <translation>한자</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Other characters.</extracomment>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>CharacterCells</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A character, and its name.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>이 글리프로 이어지는 문자가 없습니다.</translation>
    </message>
</context>
<context>
    <name>CharacterNames</name>
    <message>
        <source>Uppercase letter</source>
        <extracomment>The general category that Unicode gives a character.</extracomment>
        <translation>대문자</translation>
    </message>
    <message>
        <source>Lowercase letter</source>
        <translation>소문자</translation>
    </message>
    <message>
        <source>Titlecase letter</source>
        <translation>첫 글자만 대문자</translation>
    </message>
    <message>
        <source>Modifier letter</source>
        <translation>조정 문자</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>글자</translation>
    </message>
    <message>
        <source>Mathematical symbol</source>
        <translation>수학 기호</translation>
    </message>
    <message>
        <source>Currency symbol</source>
        <translation>통화 기호</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>기호</translation>
    </message>
    <message>
        <source>Combining mark</source>
        <translation>결합 부호</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>수 기호</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>문장 부호</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>A kind of character, not the key.</extracomment>
        <translation>공백</translation>
    </message>
    <message>
        <source>Private use</source>
        <extracomment>A kind of character.</extracomment>
        <translation>사용자 정의 문자</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>CharacterPopoverViewController</name>
    <message>
        <source>Copy %1: %2</source>
        <translation>%1 복사: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>Ultramarine</source>
        <extracomment>Pairs of colors, named by the more striking one.</extracomment>
        <translation>군청</translation>
    </message>
    <message>
        <source>Vermilion</source>
        <translation>주홍</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>숲</translation>
    </message>
    <message>
        <source>Aubergine</source>
        <translation>가지</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>종이</translation>
    </message>
    <message>
        <source>Lemon</source>
        <translation>레몬</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>연분홍</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>하늘</translation>
    </message>
    <message>
        <source>Swap Text and Background</source>
        <translation>글자와 배경 바꾸기</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>The color of the letters is edited.</extracomment>
        <translation>글자</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The color of the background is edited.</extracomment>
        <translation>배경</translation>
    </message>
    <message>
        <source>Low contrast %1:1</source>
        <extracomment>A ratio of brightness such as 4.5:1.</extracomment>
        <translation>낮은 대비 %1:1</translation>
    </message>
    <message>
        <source>Contrast %1:1</source>
        <translation>대비 %1:1</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>%1 — not available</source>
        <translation>%1 — 사용할 수 없음</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>%1: took too long to read and was given up</source>
        <translation>%1: 읽는 데 너무 오래 걸려 중단했습니다</translation>
    </message>
    <message>
        <source>%1: took too much time or memory to read and was given up</source>
        <translation>%1: 읽는 데 시간이나 메모리가 너무 많이 들어 중단했습니다</translation>
    </message>
    <message>
        <source>%1: was given up: reading it led to what reading never needs</source>
        <translation>%1: 읽기에 전혀 필요 없는 동작을 일으켜 중단했습니다</translation>
    </message>
    <message>
        <source>%1: takes more memory than it may have</source>
        <translation>%1: 허용된 것보다 많은 메모리를 씁니다</translation>
    </message>
    <message>
        <source>%1: is damaged; reading it failed</source>
        <translation>%1: 손상되어 읽지 못했습니다</translation>
    </message>
    <message>
        <source>no new process can be started: %1</source>
        <translation>새 프로세스를 시작할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1: reading it needed something that fonts never need, so it was stopped</source>
        <translation>%1: 글꼴에는 필요 없는 동작이 요구되어 읽기를 중단했습니다</translation>
    </message>
    <message>
        <source>%1: its picture is too large</source>
        <translation>%1: 그림이 너무 큽니다</translation>
    </message>
</context>
<context>
    <name>DesktopTrash</name>
    <message>
        <source>cannot move %1 to the Trash: its volume has none</source>
        <translation>%1을(를) 휴지통으로 옮길 수 없습니다: 볼륨에 휴지통이 없습니다</translation>
    </message>
    <message>
        <source>cannot take %1 from the Trash: the name is taken</source>
        <translation>%1을(를) 휴지통에서 꺼낼 수 없습니다: 같은 이름이 이미 있습니다</translation>
    </message>
</context>
<context>
    <name>DetailMenu</name>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>CSS로 복사</translation>
    </message>
</context>
<context>
    <name>DiscoverFoundry</name>
    <message>
        <source>Independent Swiss type foundry offering original retail and custom typefaces with a contemporary aesthetic in the Swiss tradition.</source>
        <translation>스위스 전통을 현대적 미감으로 이어 가며 독창적인 판매용 서체와 맞춤 서체를 만드는 스위스의 독립 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry of Kris Sowersby in Wellington, New Zealand.</source>
        <translation>뉴질랜드 웰링턴에 있는 Kris Sowersby의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Montréal-based type foundry offering free-to-try retail typefaces.</source>
        <translation>무료로 시험해 볼 수 있는 판매용 서체를 내놓는 몬트리올의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Berlin-based type design studio offering retail and bespoke typefaces, design software, research, and consultancy.</source>
        <translation>판매용 서체와 맞춤 서체, 디자인 소프트웨어, 연구와 컨설팅을 제공하는 베를린의 서체 디자인 스튜디오.</translation>
    </message>
    <message>
        <source>Indonesian type foundry offering contemporary display and text families.</source>
        <translation>현대적인 디스플레이 패밀리와 본문용 패밀리를 만드는 인도네시아의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry from Gijón, Spain, offering typefaces with pay-what-you-want options.</source>
        <translation>원하는 만큼 값을 내고 쓸 수 있는 서체를 제공하는 스페인 히혼의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Prague-based type foundry offering large variable families.</source>
        <translation>규모가 큰 가변 패밀리를 만드는 프라하의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Californian type foundry of James Edmondson, offering expressive display typefaces.</source>
        <translation>표현력 있는 디스플레이 서체를 만드는 James Edmondson의 캘리포니아 서체 파운드리.</translation>
    </message>
    <message>
        <source>Stockholm-based type foundry of Göran Söderström.</source>
        <translation>스톡홀름에 있는 Göran Söderström의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry from Geneva, Switzerland.</source>
        <translation>스위스 제네바의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry offering typefaces for text and interfaces.</source>
        <translation>본문과 인터페이스를 위한 서체를 만드는 서체 파운드리.</translation>
    </message>
    <message>
        <source>Swiss type foundry offering typefaces and design books.</source>
        <translation>서체와 디자인 책을 내는 스위스의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry of Mattox Shuler, offering display families and workhorses.</source>
        <translation>디스플레이 패밀리와 두루 쓰이는 패밀리를 만드는 Mattox Shuler의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Californian type foundry of Amy and Jen Hood.</source>
        <translation>Amy Hood와 Jen Hood의 캘리포니아 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry with a small catalogue of contemporary typefaces.</source>
        <translation>현대적인 서체를 엄선해 소규모로 내놓는 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry of the lettering artist Erik Marinovich.</source>
        <translation>레터링 아티스트 Erik Marinovich의 서체 파운드리.</translation>
    </message>
    <message>
        <source>Type foundry of Dino dos Santos in Porto, Portugal.</source>
        <translation>포르투갈 포르투에 있는 Dino dos Santos의 서체 파운드리.</translation>
    </message>
    <message>
        <source>The first open-source type foundry, launched in 2009, providing a curated collection of professional-quality free fonts like League Gothic and League Spartan.</source>
        <translation>2009년에 문을 연 최초의 오픈 소스 서체 파운드리. League Gothic, League Spartan 등 전문가 수준의 무료 글꼴을 엄선해 제공합니다.</translation>
    </message>
</context>
<context>
    <name>FaceInformation</name>
    <message>
        <source>Copyright</source>
        <translation>저작권</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>패밀리</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>스타일</translation>
    </message>
    <message>
        <source>Unique identifier</source>
        <translation>고유 식별자</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>전체 이름</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 이름</translation>
    </message>
    <message>
        <source>Trademark</source>
        <translation>상표</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>제작사</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>디자이너</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Manufacturer’s address</source>
        <translation>제작사 주소</translation>
    </message>
    <message>
        <source>Designer’s address</source>
        <translation>디자이너 주소</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>Licence address</source>
        <translation>라이선스 주소</translation>
    </message>
    <message>
        <source>Typographic family</source>
        <translation>타이포그래피 패밀리</translation>
    </message>
    <message>
        <source>Typographic style</source>
        <translation>타이포그래피 스타일</translation>
    </message>
    <message>
        <source>Compatible full name</source>
        <translation>호환용 전체 이름</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>견본 글</translation>
    </message>
    <message>
        <source>PostScript CID name</source>
        <translation>PostScript CID 이름</translation>
    </message>
    <message>
        <source>WWS family</source>
        <translation>WWS 패밀리</translation>
    </message>
    <message>
        <source>WWS style</source>
        <translation>WWS 스타일</translation>
    </message>
    <message>
        <source>Palette for light backgrounds</source>
        <translation>밝은 배경용 팔레트</translation>
    </message>
    <message>
        <source>Palette for dark backgrounds</source>
        <translation>어두운 배경용 팔레트</translation>
    </message>
    <message>
        <source>Variations PostScript name prefix</source>
        <translation>가변 글꼴 PostScript 이름 접두어</translation>
    </message>
    <message>
        <source>Installable</source>
        <translation>설치 가능</translation>
    </message>
    <message>
        <source>Restricted: not without the owner’s permission</source>
        <translation>제한됨: 소유자의 허락 필요</translation>
    </message>
    <message>
        <source>Preview and print</source>
        <translation>미리 보기 및 인쇄</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>편집 가능</translation>
    </message>
    <message>
        <source>%1, bitmaps only</source>
        <extracomment>%1 is what a licence lets documents do with the font that they embed, such as &quot;Editable&quot;.</extracomment>
        <translation>%1, 비트맵만</translation>
    </message>
    <message>
        <source>%1, no subsetting, bitmaps only</source>
        <translation>%1, 서브셋 불가, 비트맵만</translation>
    </message>
    <message>
        <source>%1, no subsetting</source>
        <translation>%1, 서브셋 불가</translation>
    </message>
</context>
<context>
    <name>FeatureRegistry</name>
    <message>
        <source>All Typographic Features</source>
        <translation>모든 타이포그래피 기능</translation>
    </message>
    <message>
        <source>Ligatures</source>
        <translation>합자</translation>
    </message>
    <message>
        <source>Cursive Connection</source>
        <translation>필기체 연결</translation>
    </message>
    <message>
        <source>Letter Case</source>
        <translation>대소문자</translation>
    </message>
    <message>
        <source>Vertical Substitution</source>
        <translation>세로쓰기 치환</translation>
    </message>
    <message>
        <source>Linguistic Rearrangement</source>
        <translation>언어별 재배열</translation>
    </message>
    <message>
        <source>Number Spacing</source>
        <translation>숫자 간격</translation>
    </message>
    <message>
        <source>Smart Swashes</source>
        <translation>스마트 스와시</translation>
    </message>
    <message>
        <source>Diacritics</source>
        <translation>발음 구별 부호</translation>
    </message>
    <message>
        <source>Vertical Position</source>
        <translation>세로 위치</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>분수</translation>
    </message>
    <message>
        <source>Overlapping Characters</source>
        <translation>겹치는 문자</translation>
    </message>
    <message>
        <source>Typographic Extras</source>
        <translation>타이포그래피 부가 기능</translation>
    </message>
    <message>
        <source>Mathematical Extras</source>
        <translation>수학 부가 기능</translation>
    </message>
    <message>
        <source>Ornament Sets</source>
        <translation>장식 세트</translation>
    </message>
    <message>
        <source>Character Alternatives</source>
        <translation>대체 문자</translation>
    </message>
    <message>
        <source>Design Complexity</source>
        <translation>디자인 복잡도</translation>
    </message>
    <message>
        <source>Style Options</source>
        <translation>스타일 옵션</translation>
    </message>
    <message>
        <source>Character Shape</source>
        <translation>문자 형태</translation>
    </message>
    <message>
        <source>Number Case</source>
        <translation>숫자 형태</translation>
    </message>
    <message>
        <source>Text Spacing</source>
        <translation>글자 간격</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>음역</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>주석 기호</translation>
    </message>
    <message>
        <source>Kana Spacing</source>
        <translation>가나 간격</translation>
    </message>
    <message>
        <source>Ideographic Spacing</source>
        <translation>한자 간격</translation>
    </message>
    <message>
        <source>Unicode Decomposition</source>
        <translation>유니코드 분해</translation>
    </message>
    <message>
        <source>Ruby Kana</source>
        <translation>루비 가나</translation>
    </message>
    <message>
        <source>CJK Symbol Alternatives</source>
        <translation>한중일 기호 대체</translation>
    </message>
    <message>
        <source>Ideographic Alternatives</source>
        <translation>한자 대체</translation>
    </message>
    <message>
        <source>CJK Vertical Roman Placement</source>
        <translation>한중일 로마자 세로쓰기 배치</translation>
    </message>
    <message>
        <source>Italic CJK Roman</source>
        <translation>한중일 로마자 이탤릭</translation>
    </message>
    <message>
        <source>Case-Sensitive Layout</source>
        <translation>대소문자 구분 레이아웃</translation>
    </message>
    <message>
        <source>Alternate Kana</source>
        <translation>대체 가나</translation>
    </message>
    <message>
        <source>Stylistic Alternatives</source>
        <translation>스타일 대체</translation>
    </message>
    <message>
        <source>Contextual Alternatives</source>
        <translation>문맥 대체</translation>
    </message>
    <message>
        <source>Lower Case</source>
        <translation>소문자</translation>
    </message>
    <message>
        <source>Upper Case</source>
        <translation>대문자</translation>
    </message>
    <message>
        <source>Language Tag</source>
        <translation>언어 태그</translation>
    </message>
    <message>
        <source>CJK Roman Spacing</source>
        <translation>한중일 로마자 간격</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>필수 합자</translation>
    </message>
    <message>
        <source>Common Ligatures</source>
        <translation>일반 합자</translation>
    </message>
    <message>
        <source>Rare Ligatures</source>
        <translation>희귀 합자</translation>
    </message>
    <message>
        <source>Logos</source>
        <translation>로고</translation>
    </message>
    <message>
        <source>Rebus Pictures</source>
        <translation>그림 글자</translation>
    </message>
    <message>
        <source>Diphthong Ligatures</source>
        <translation>이중 모음 합자</translation>
    </message>
    <message>
        <source>Squared Ligatures</source>
        <translation>네모 합자</translation>
    </message>
    <message>
        <source>Abbreviated Squared Ligatures</source>
        <translation>약어 네모 합자</translation>
    </message>
    <message>
        <source>Symbol Ligatures</source>
        <translation>기호 합자</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>문맥 합자</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>옛 합자</translation>
    </message>
    <message>
        <source>Unconnected</source>
        <translation>연결 안 함</translation>
    </message>
    <message>
        <source>Partially Connected</source>
        <translation>일부 연결</translation>
    </message>
    <message>
        <source>Cursive</source>
        <translation>필기체</translation>
    </message>
    <message>
        <source>Upper and Lower Case</source>
        <translation>대문자와 소문자</translation>
    </message>
    <message>
        <source>All Capitals</source>
        <translation>모두 대문자</translation>
    </message>
    <message>
        <source>All Lower Case</source>
        <translation>모두 소문자</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>작은 대문자</translation>
    </message>
    <message>
        <source>Initial Capitals</source>
        <translation>첫 글자 대문자</translation>
    </message>
    <message>
        <source>Initial Capitals and Small Capitals</source>
        <translation>첫 글자 대문자와 작은 대문자</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>유니케이스</translation>
    </message>
    <message>
        <source>Vertical Forms</source>
        <translation>세로쓰기 자형</translation>
    </message>
    <message>
        <source>Monospaced Numbers</source>
        <translation>고정폭 숫자</translation>
    </message>
    <message>
        <source>Proportional Numbers</source>
        <translation>비례폭 숫자</translation>
    </message>
    <message>
        <source>Third-Width Numbers</source>
        <translation>3분각 숫자</translation>
    </message>
    <message>
        <source>Quarter-Width Numbers</source>
        <translation>4분각 숫자</translation>
    </message>
    <message>
        <source>Word Initial Swashes</source>
        <translation>단어 첫머리 스와시</translation>
    </message>
    <message>
        <source>Word Final Swashes</source>
        <translation>단어 끝 스와시</translation>
    </message>
    <message>
        <source>Line Initial Swashes</source>
        <translation>줄 첫머리 스와시</translation>
    </message>
    <message>
        <source>Line Final Swashes</source>
        <translation>줄 끝 스와시</translation>
    </message>
    <message>
        <source>Non-Final Swashes</source>
        <translation>끝이 아닌 위치의 스와시</translation>
    </message>
    <message>
        <source>Show Diacritics</source>
        <translation>발음 구별 부호 표시</translation>
    </message>
    <message>
        <source>Hide Diacritics</source>
        <translation>발음 구별 부호 숨기기</translation>
    </message>
    <message>
        <source>Decompose Diacritics</source>
        <translation>발음 구별 부호 분해</translation>
    </message>
    <message>
        <source>Normal Position</source>
        <translation>보통 위치</translation>
    </message>
    <message>
        <source>Superiors</source>
        <translation>위 첨자</translation>
    </message>
    <message>
        <source>Inferiors</source>
        <translation>아래 첨자</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>서수</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>과학용 아래 첨자</translation>
    </message>
    <message>
        <source>No Fractions</source>
        <translation>분수 없음</translation>
    </message>
    <message>
        <source>Vertical Fractions</source>
        <translation>세로 분수</translation>
    </message>
    <message>
        <source>Diagonal Fractions</source>
        <translation>사선 분수</translation>
    </message>
    <message>
        <source>Prevent Overlap</source>
        <translation>겹침 방지</translation>
    </message>
    <message>
        <source>Hyphens to Em Dash</source>
        <translation>하이픈을 엠 대시로</translation>
    </message>
    <message>
        <source>Hyphen to En Dash</source>
        <translation>하이픈을 엔 대시로</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>빗금 0</translation>
    </message>
    <message>
        <source>Form Interrobang</source>
        <translation>물음느낌표 만들기</translation>
    </message>
    <message>
        <source>Smart Quotes</source>
        <translation>둥근 따옴표</translation>
    </message>
    <message>
        <source>Periods to Ellipsis</source>
        <translation>마침표를 줄임표로</translation>
    </message>
    <message>
        <source>Hyphen to Minus</source>
        <translation>하이픈을 빼기 기호로</translation>
    </message>
    <message>
        <source>Asterisk to Multiply</source>
        <translation>별표를 곱하기 기호로</translation>
    </message>
    <message>
        <source>Slash to Divide</source>
        <translation>빗금을 나누기 기호로</translation>
    </message>
    <message>
        <source>Inequality Ligatures</source>
        <translation>부등호 합자</translation>
    </message>
    <message>
        <source>Exponents</source>
        <translation>지수</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>수학용 그리스 문자</translation>
    </message>
    <message>
        <source>No Ornaments</source>
        <translation>장식 없음</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>딩뱃</translation>
    </message>
    <message>
        <source>Pi Characters</source>
        <translation>파이 문자</translation>
    </message>
    <message>
        <source>Fleurons</source>
        <translation>꽃 장식</translation>
    </message>
    <message>
        <source>Decorative Borders</source>
        <translation>장식 테두리</translation>
    </message>
    <message>
        <source>International Symbols</source>
        <translation>국제 기호</translation>
    </message>
    <message>
        <source>Mathematical Symbols</source>
        <translation>수학 기호</translation>
    </message>
    <message>
        <source>No Alternates</source>
        <translation>대체 없음</translation>
    </message>
    <message>
        <source>Design Level 1</source>
        <translation>디자인 수준 1</translation>
    </message>
    <message>
        <source>Design Level 2</source>
        <translation>디자인 수준 2</translation>
    </message>
    <message>
        <source>Design Level 3</source>
        <translation>디자인 수준 3</translation>
    </message>
    <message>
        <source>Design Level 4</source>
        <translation>디자인 수준 4</translation>
    </message>
    <message>
        <source>Design Level 5</source>
        <translation>디자인 수준 5</translation>
    </message>
    <message>
        <source>No Style Options</source>
        <translation>스타일 옵션 없음</translation>
    </message>
    <message>
        <source>Display Text</source>
        <translation>디스플레이 글자</translation>
    </message>
    <message>
        <source>Engraved Text</source>
        <translation>새김 글자</translation>
    </message>
    <message>
        <source>Illuminated Capitals</source>
        <translation>장식 대문자</translation>
    </message>
    <message>
        <source>Titling Capitals</source>
        <translation>제목용 대문자</translation>
    </message>
    <message>
        <source>Tall Capitals</source>
        <translation>키 큰 대문자</translation>
    </message>
    <message>
        <source>Traditional Characters</source>
        <translation>번체 문자</translation>
    </message>
    <message>
        <source>Simplified Characters</source>
        <translation>간체 문자</translation>
    </message>
    <message>
        <source>JIS 1978 Characters</source>
        <translation>JIS 1978 문자</translation>
    </message>
    <message>
        <source>JIS 1983 Characters</source>
        <translation>JIS 1983 문자</translation>
    </message>
    <message>
        <source>JIS 1990 Characters</source>
        <translation>JIS 1990 문자</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 1</source>
        <translation>번체 문자, 대체 1</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 2</source>
        <translation>번체 문자, 대체 2</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 3</source>
        <translation>번체 문자, 대체 3</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 4</source>
        <translation>번체 문자, 대체 4</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 5</source>
        <translation>번체 문자, 대체 5</translation>
    </message>
    <message>
        <source>Expert Characters</source>
        <translation>전문가용 문자</translation>
    </message>
    <message>
        <source>JIS 2004 Characters</source>
        <translation>JIS 2004 문자</translation>
    </message>
    <message>
        <source>Hojo Characters</source>
        <translation>호조(보조 한자) 문자</translation>
    </message>
    <message>
        <source>NLC Characters</source>
        <translation>NLC 문자</translation>
    </message>
    <message>
        <source>Traditional Names Characters</source>
        <translation>인명용 전통 문자</translation>
    </message>
    <message>
        <source>Lower Case Numbers</source>
        <translation>소문자형 숫자</translation>
    </message>
    <message>
        <source>Upper Case Numbers</source>
        <translation>대문자형 숫자</translation>
    </message>
    <message>
        <source>Proportional Text</source>
        <translation>비례폭 글자</translation>
    </message>
    <message>
        <source>Monospaced Text</source>
        <translation>고정폭 글자</translation>
    </message>
    <message>
        <source>Half-Width Text</source>
        <translation>반각 글자</translation>
    </message>
    <message>
        <source>Third-Width Text</source>
        <translation>3분각 글자</translation>
    </message>
    <message>
        <source>Quarter-Width Text</source>
        <translation>4분각 글자</translation>
    </message>
    <message>
        <source>Alternate Proportional Text</source>
        <translation>대체 비례폭 글자</translation>
    </message>
    <message>
        <source>Alternate Half-Width Text</source>
        <translation>대체 반각 글자</translation>
    </message>
    <message>
        <source>No Transliteration</source>
        <translation>음역 없음</translation>
    </message>
    <message>
        <source>Hanja to Hangul</source>
        <translation>한자를 한글로</translation>
    </message>
    <message>
        <source>Hiragana to Katakana</source>
        <translation>히라가나를 가타카나로</translation>
    </message>
    <message>
        <source>Katakana to Hiragana</source>
        <translation>가타카나를 히라가나로</translation>
    </message>
    <message>
        <source>Kana to Romanization</source>
        <translation>가나를 로마자로</translation>
    </message>
    <message>
        <source>Romanization to Hiragana</source>
        <translation>로마자를 히라가나로</translation>
    </message>
    <message>
        <source>Romanization to Katakana</source>
        <translation>로마자를 가타카나로</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 1</source>
        <translation>한자를 한글로, 대체 1</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 2</source>
        <translation>한자를 한글로, 대체 2</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 3</source>
        <translation>한자를 한글로, 대체 3</translation>
    </message>
    <message>
        <source>No Annotation</source>
        <translation>주석 기호 없음</translation>
    </message>
    <message>
        <source>Box Annotation</source>
        <translation>네모 주석 기호</translation>
    </message>
    <message>
        <source>Rounded Box Annotation</source>
        <translation>둥근 네모 주석 기호</translation>
    </message>
    <message>
        <source>Circle Annotation</source>
        <translation>동그라미 주석 기호</translation>
    </message>
    <message>
        <source>Inverted Circle Annotation</source>
        <translation>반전 동그라미 주석 기호</translation>
    </message>
    <message>
        <source>Parenthesis Annotation</source>
        <translation>괄호 주석 기호</translation>
    </message>
    <message>
        <source>Period Annotation</source>
        <translation>마침표 주석 기호</translation>
    </message>
    <message>
        <source>Roman Numeral Annotation</source>
        <translation>로마 숫자 주석 기호</translation>
    </message>
    <message>
        <source>Diamond Annotation</source>
        <translation>마름모 주석 기호</translation>
    </message>
    <message>
        <source>Inverted Box Annotation</source>
        <translation>반전 네모 주석 기호</translation>
    </message>
    <message>
        <source>Inverted Rounded Box Annotation</source>
        <translation>반전 둥근 네모 주석 기호</translation>
    </message>
    <message>
        <source>Full-Width Kana</source>
        <translation>전각 가나</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>비례폭 가나</translation>
    </message>
    <message>
        <source>Full-Width Ideographs</source>
        <translation>전각 한자</translation>
    </message>
    <message>
        <source>Proportional Ideographs</source>
        <translation>비례폭 한자</translation>
    </message>
    <message>
        <source>Half-Width Ideographs</source>
        <translation>반각 한자</translation>
    </message>
    <message>
        <source>Canonical Composition</source>
        <translation>정준 조합</translation>
    </message>
    <message>
        <source>Compatibility Composition</source>
        <translation>호환 조합</translation>
    </message>
    <message>
        <source>Transcoding Composition</source>
        <translation>코드 변환 조합</translation>
    </message>
    <message>
        <source>No CJK Symbol Alternatives</source>
        <translation>한중일 기호 대체 없음</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 1</source>
        <translation>한중일 기호 대체 1</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 2</source>
        <translation>한중일 기호 대체 2</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 3</source>
        <translation>한중일 기호 대체 3</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 4</source>
        <translation>한중일 기호 대체 4</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 5</source>
        <translation>한중일 기호 대체 5</translation>
    </message>
    <message>
        <source>No Ideographic Alternatives</source>
        <translation>한자 대체 없음</translation>
    </message>
    <message>
        <source>Ideographic Alternative 1</source>
        <translation>한자 대체 1</translation>
    </message>
    <message>
        <source>Ideographic Alternative 2</source>
        <translation>한자 대체 2</translation>
    </message>
    <message>
        <source>Ideographic Alternative 3</source>
        <translation>한자 대체 3</translation>
    </message>
    <message>
        <source>Ideographic Alternative 4</source>
        <translation>한자 대체 4</translation>
    </message>
    <message>
        <source>Ideographic Alternative 5</source>
        <translation>한자 대체 5</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Horizontal Baseline</source>
        <translation>가로쓰기 기준선</translation>
    </message>
    <message>
        <source>Case-Sensitive Spacing</source>
        <translation>대소문자 구분 간격</translation>
    </message>
    <message>
        <source>Alternate Horizontal Kana</source>
        <translation>가로쓰기 대체 가나</translation>
    </message>
    <message>
        <source>Alternate Vertical Kana</source>
        <translation>세로쓰기 대체 가나</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>문맥 대체</translation>
    </message>
    <message>
        <source>Swash Alternates</source>
        <translation>스와시 대체</translation>
    </message>
    <message>
        <source>Contextual Swash Alternates</source>
        <translation>문맥 스와시 대체</translation>
    </message>
    <message>
        <source>Default Lower Case</source>
        <translation>기본 소문자</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>아주 작은 대문자</translation>
    </message>
    <message>
        <source>Default Upper Case</source>
        <translation>기본 대문자</translation>
    </message>
    <message>
        <source>Half-Width CJK Roman</source>
        <translation>반각 한중일 로마자</translation>
    </message>
    <message>
        <source>Proportional CJK Roman</source>
        <translation>비례폭 한중일 로마자</translation>
    </message>
    <message>
        <source>Default CJK Roman</source>
        <translation>기본 한중일 로마자</translation>
    </message>
    <message>
        <source>Full-Width CJK Roman</source>
        <translation>전각 한중일 로마자</translation>
    </message>
    <message>
        <source>No Stylistic Alternatives</source>
        <translation>스타일 대체 없음</translation>
    </message>
    <message>
        <source>Stylistic Alternative %1</source>
        <translation>스타일 대체 %1</translation>
    </message>
</context>
<context>
    <name>FeatureTagNames</name>
    <message>
        <source>Access All Alternates</source>
        <translation>모든 대체 글리프 사용</translation>
    </message>
    <message>
        <source>Above-Base Forms</source>
        <translation>기준 글자 위 자형</translation>
    </message>
    <message>
        <source>Above-Base Mark Positioning</source>
        <translation>기준 글자 위 부호 위치</translation>
    </message>
    <message>
        <source>Above-Base Substitutions</source>
        <translation>기준 글자 위 치환</translation>
    </message>
    <message>
        <source>Alternative Fractions</source>
        <translation>대체 분수</translation>
    </message>
    <message>
        <source>Akhand</source>
        <translation>아칸드</translation>
    </message>
    <message>
        <source>Below-Base Forms</source>
        <translation>기준 글자 아래 자형</translation>
    </message>
    <message>
        <source>Below-Base Mark Positioning</source>
        <translation>기준 글자 아래 부호 위치</translation>
    </message>
    <message>
        <source>Below-Base Substitutions</source>
        <translation>기준 글자 아래 치환</translation>
    </message>
    <message>
        <source>Petite Capitals From Capitals</source>
        <translation>대문자를 아주 작은 대문자로</translation>
    </message>
    <message>
        <source>Small Capitals From Capitals</source>
        <translation>대문자를 작은 대문자로</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>문맥 대체</translation>
    </message>
    <message>
        <source>Case-Sensitive Forms</source>
        <translation>대소문자 구분 자형</translation>
    </message>
    <message>
        <source>Glyph Composition / Decomposition</source>
        <translation>글리프 조합 및 분해</translation>
    </message>
    <message>
        <source>Conjunct Form After Ro</source>
        <translation>Ro 뒤 결합 자형</translation>
    </message>
    <message>
        <source>Contextual Half-Width Spacing</source>
        <translation>문맥 반각 간격</translation>
    </message>
    <message>
        <source>Conjunct Forms</source>
        <translation>결합 자형</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>문맥 합자</translation>
    </message>
    <message>
        <source>Centered CJK Punctuation</source>
        <translation>한중일 문장 부호 가운데 배치</translation>
    </message>
    <message>
        <source>Capital Spacing</source>
        <translation>대문자 간격</translation>
    </message>
    <message>
        <source>Contextual Swash</source>
        <translation>문맥 스와시</translation>
    </message>
    <message>
        <source>Cursive Positioning</source>
        <translation>필기체 위치</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>거리</translation>
    </message>
    <message>
        <source>Discretionary Ligatures</source>
        <translation>임의 합자</translation>
    </message>
    <message>
        <source>Denominators</source>
        <translation>분모</translation>
    </message>
    <message>
        <source>Dotless Forms</source>
        <translation>점 없는 자형</translation>
    </message>
    <message>
        <source>Expert Forms</source>
        <translation>전문가용 자형</translation>
    </message>
    <message>
        <source>Final Glyph on Line Alternates</source>
        <translation>줄 끝 글리프 대체</translation>
    </message>
    <message>
        <source>Terminal Forms #2</source>
        <translation>어말형 2</translation>
    </message>
    <message>
        <source>Terminal Forms #3</source>
        <translation>어말형 3</translation>
    </message>
    <message>
        <source>Terminal Forms</source>
        <translation>어말형</translation>
    </message>
    <message>
        <source>Flattened Accent Forms</source>
        <translation>납작한 악센트 자형</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>분수</translation>
    </message>
    <message>
        <source>Full Widths</source>
        <translation>전각</translation>
    </message>
    <message>
        <source>Half Forms</source>
        <translation>반쪽 자형</translation>
    </message>
    <message>
        <source>Halant Forms</source>
        <translation>할란트 자형</translation>
    </message>
    <message>
        <source>Alternate Half Widths</source>
        <translation>대체 반각</translation>
    </message>
    <message>
        <source>Historical Forms</source>
        <translation>옛 자형</translation>
    </message>
    <message>
        <source>Horizontal Kana Alternates</source>
        <translation>가로쓰기 가나 대체</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>옛 합자</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>한글</translation>
    </message>
    <message>
        <source>Hojo Kanji Forms</source>
        <translation>호조 한자 자형</translation>
    </message>
    <message>
        <source>Half Widths</source>
        <translation>반각</translation>
    </message>
    <message>
        <source>Initial Forms</source>
        <translation>어두형</translation>
    </message>
    <message>
        <source>Isolated Forms</source>
        <translation>독립형</translation>
    </message>
    <message>
        <source>Italics</source>
        <translation>이탤릭</translation>
    </message>
    <message>
        <source>Justification Alternates</source>
        <translation>양끝 맞춤 대체</translation>
    </message>
    <message>
        <source>JIS2004 Forms</source>
        <translation>JIS2004 자형</translation>
    </message>
    <message>
        <source>JIS78 Forms</source>
        <translation>JIS78 자형</translation>
    </message>
    <message>
        <source>JIS83 Forms</source>
        <translation>JIS83 자형</translation>
    </message>
    <message>
        <source>JIS90 Forms</source>
        <translation>JIS90 자형</translation>
    </message>
    <message>
        <source>Kerning</source>
        <translation>커닝</translation>
    </message>
    <message>
        <source>Left Bounds</source>
        <translation>왼쪽 경계</translation>
    </message>
    <message>
        <source>Standard Ligatures</source>
        <translation>표준 합자</translation>
    </message>
    <message>
        <source>Leading Jamo Forms</source>
        <translation>초성 자모 자형</translation>
    </message>
    <message>
        <source>Lining Figures</source>
        <translation>라이닝 숫자</translation>
    </message>
    <message>
        <source>Localized Forms</source>
        <translation>언어별 자형</translation>
    </message>
    <message>
        <source>Left-to-Right Alternates</source>
        <translation>왼쪽에서 오른쪽 쓰기 대체</translation>
    </message>
    <message>
        <source>Left-to-Right Mirrored Forms</source>
        <translation>왼쪽에서 오른쪽 쓰기 반전 자형</translation>
    </message>
    <message>
        <source>Mark Positioning</source>
        <translation>부호 위치</translation>
    </message>
    <message>
        <source>Medial Forms #2</source>
        <translation>어중형 2</translation>
    </message>
    <message>
        <source>Medial Forms</source>
        <translation>어중형</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>수학용 그리스 문자</translation>
    </message>
    <message>
        <source>Mark to Mark Positioning</source>
        <translation>부호 간 위치</translation>
    </message>
    <message>
        <source>Mark Positioning via Substitution</source>
        <translation>치환에 의한 부호 위치</translation>
    </message>
    <message>
        <source>Alternate Annotation Forms</source>
        <translation>대체 주석 기호 자형</translation>
    </message>
    <message>
        <source>NLC Kanji Forms</source>
        <translation>NLC 한자 자형</translation>
    </message>
    <message>
        <source>Nukta Forms</source>
        <translation>누크타 자형</translation>
    </message>
    <message>
        <source>Numerators</source>
        <translation>분자</translation>
    </message>
    <message>
        <source>Oldstyle Figures</source>
        <translation>올드스타일 숫자</translation>
    </message>
    <message>
        <source>Optical Bounds</source>
        <translation>광학 경계</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>서수</translation>
    </message>
    <message>
        <source>Ornaments</source>
        <translation>장식</translation>
    </message>
    <message>
        <source>Proportional Alternate Widths</source>
        <translation>대체 비례폭</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>아주 작은 대문자</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>비례폭 가나</translation>
    </message>
    <message>
        <source>Proportional Figures</source>
        <translation>비례폭 숫자</translation>
    </message>
    <message>
        <source>Pre-Base Forms</source>
        <translation>기준 글자 앞 자형</translation>
    </message>
    <message>
        <source>Pre-Base Substitutions</source>
        <translation>기준 글자 앞 치환</translation>
    </message>
    <message>
        <source>Post-Base Forms</source>
        <translation>기준 글자 뒤 자형</translation>
    </message>
    <message>
        <source>Post-Base Substitutions</source>
        <translation>기준 글자 뒤 치환</translation>
    </message>
    <message>
        <source>Proportional Widths</source>
        <translation>비례폭</translation>
    </message>
    <message>
        <source>Quarter Widths</source>
        <translation>4분각</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>무작위</translation>
    </message>
    <message>
        <source>Required Contextual Alternates</source>
        <translation>필수 문맥 대체</translation>
    </message>
    <message>
        <source>Rakar Forms</source>
        <translation>라카르 자형</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>필수 합자</translation>
    </message>
    <message>
        <source>Reph Form</source>
        <translation>레프 자형</translation>
    </message>
    <message>
        <source>Right Bounds</source>
        <translation>오른쪽 경계</translation>
    </message>
    <message>
        <source>Right-to-Left Alternates</source>
        <translation>오른쪽에서 왼쪽 쓰기 대체</translation>
    </message>
    <message>
        <source>Right-to-Left Mirrored Forms</source>
        <translation>오른쪽에서 왼쪽 쓰기 반전 자형</translation>
    </message>
    <message>
        <source>Ruby Notation Forms</source>
        <translation>루비 자형</translation>
    </message>
    <message>
        <source>Required Variation Alternates</source>
        <translation>필수 가변 대체</translation>
    </message>
    <message>
        <source>Stylistic Alternates</source>
        <translation>스타일 대체</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>과학용 아래 첨자</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>광학 크기</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>작은 대문자</translation>
    </message>
    <message>
        <source>Simplified Forms</source>
        <translation>간체 자형</translation>
    </message>
    <message>
        <source>Math Script-Style Alternates</source>
        <translation>수학 첨자용 대체</translation>
    </message>
    <message>
        <source>Stretching Glyph Decomposition</source>
        <translation>늘임 글리프 분해</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>아래 첨자</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>위 첨자</translation>
    </message>
    <message>
        <source>Swash</source>
        <translation>스와시</translation>
    </message>
    <message>
        <source>Titling</source>
        <translation>제목용 대체</translation>
    </message>
    <message>
        <source>Trailing Jamo Forms</source>
        <translation>종성 자모 자형</translation>
    </message>
    <message>
        <source>Traditional Name Forms</source>
        <translation>인명용 전통 자형</translation>
    </message>
    <message>
        <source>Tabular Figures</source>
        <translation>고정폭 숫자</translation>
    </message>
    <message>
        <source>Traditional Forms</source>
        <translation>번체 자형</translation>
    </message>
    <message>
        <source>Third Widths</source>
        <translation>3분각</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>유니케이스</translation>
    </message>
    <message>
        <source>Alternate Vertical Metrics</source>
        <translation>대체 세로 메트릭</translation>
    </message>
    <message>
        <source>Vattu Variants</source>
        <translation>바투 변형</translation>
    </message>
    <message>
        <source>Vertical Contextual Half-Width Spacing</source>
        <translation>세로쓰기 문맥 반각 간격</translation>
    </message>
    <message>
        <source>Vertical Alternates</source>
        <translation>세로쓰기 대체</translation>
    </message>
    <message>
        <source>Alternate Vertical Half Metrics</source>
        <translation>대체 세로 반각 메트릭</translation>
    </message>
    <message>
        <source>Vowel Jamo Forms</source>
        <translation>중성 자모 자형</translation>
    </message>
    <message>
        <source>Vertical Kana Alternates</source>
        <translation>세로쓰기 가나 대체</translation>
    </message>
    <message>
        <source>Vertical Kerning</source>
        <translation>세로쓰기 커닝</translation>
    </message>
    <message>
        <source>Proportional Alternate Vertical Metrics</source>
        <translation>대체 비례 세로 메트릭</translation>
    </message>
    <message>
        <source>Vertical Alternates and Rotation</source>
        <translation>세로쓰기 대체 및 회전</translation>
    </message>
    <message>
        <source>Vertical Alternates for Rotation</source>
        <translation>회전용 세로쓰기 대체</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>빗금 0</translation>
    </message>
    <message>
        <source>Stylistic Set %1</source>
        <translation>스타일 세트 %1</translation>
    </message>
    <message>
        <source>Character Variant %1</source>
        <translation>문자 변형 %1</translation>
    </message>
</context>
<context>
    <name>FeedDownload</name>
    <message>
        <source>cannot read the release feed: %1</source>
        <translation>릴리스 피드를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the release server gives no feed: it answers with status %1</source>
        <translation>릴리스 서버가 피드를 주지 않습니다: 응답 상태 %1</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is no https address</source>
        <translation>릴리스 피드의 주소가 https 주소가 아닙니다</translation>
    </message>
    <message>
        <source>the release feed&apos;s address has a name or password in it</source>
        <translation>릴리스 피드의 주소에 이름이나 암호가 들어 있습니다</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is not secure: it must begin with https</source>
        <translation>릴리스 피드의 주소가 안전하지 않습니다: https로 시작해야 합니다</translation>
    </message>
    <message>
        <source>the release server leads to an address that is not secure</source>
        <translation>릴리스 서버가 안전하지 않은 주소로 연결합니다</translation>
    </message>
    <message>
        <source>the release server took too long to answer</source>
        <translation>릴리스 서버의 응답이 너무 오래 걸렸습니다</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>릴리스 피드가 너무 큽니다</translation>
    </message>
    <message>
        <source>the release server leads from one address to the next</source>
        <translation>릴리스 서버가 주소를 계속 다른 주소로 돌립니다</translation>
    </message>
</context>
<context>
    <name>FeedUpdaterController</name>
    <message>
        <source>this build has no address of a release feed</source>
        <translation>이 빌드에는 릴리스 피드의 주소가 없습니다</translation>
    </message>
    <message>
        <source>the running version is no number</source>
        <translation>실행 중인 버전이 숫자가 아닙니다</translation>
    </message>
</context>
<context>
    <name>FilePath</name>
    <message>
        <source>&quot;%1&quot; is no file URL: %2</source>
        <translation>“%1”은(는) 파일 URL이 아닙니다: %2</translation>
    </message>
    <message>
        <source>it does not begin with file:</source>
        <translation>file:로 시작하지 않습니다</translation>
    </message>
    <message>
        <source>it names another host</source>
        <translation>다른 호스트를 가리킵니다</translation>
    </message>
    <message>
        <source>its path is not absolute</source>
        <translation>절대 경로가 아닙니다</translation>
    </message>
    <message>
        <source>it has a query or a fragment</source>
        <translation>쿼리나 프래그먼트가 있습니다</translation>
    </message>
    <message>
        <source>it has a broken percent escape</source>
        <translation>잘못된 퍼센트 이스케이프가 있습니다</translation>
    </message>
    <message>
        <source>it contains a NUL</source>
        <translation>NUL 문자가 들어 있습니다</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1은(는) 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1 changed while it was read</source>
        <translation>읽는 동안 %1이(가) 바뀌었습니다</translation>
    </message>
    <message>
        <source>the copy %1 differs from its source</source>
        <translation>사본 %1이(가) 원본과 다릅니다</translation>
    </message>
</context>
<context>
    <name>FolderCommands</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>FontFile</name>
    <message>
        <source>%1: %2</source>
        <extracomment>A file, and what is wrong with it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>%1: has changed while in use</source>
        <translation>%1: 사용하는 동안 바뀌었습니다</translation>
    </message>
    <message>
        <source>has neither names nor a character map</source>
        <translation>이름도 문자 맵도 없습니다</translation>
    </message>
    <message>
        <source>%1: has no face number %2</source>
        <translation>%1: %2번 페이스가 없습니다</translation>
    </message>
    <message>
        <source>%1: has no named instance number %2</source>
        <translation>%1: 이름 있는 인스턴스 %2번이 없습니다</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: 파일이 없습니다</translation>
    </message>
    <message>
        <source>%1: may not be read</source>
        <translation>%1: 읽을 권한이 없습니다</translation>
    </message>
    <message>
        <source>%1: is a link that leads in a circle</source>
        <translation>%1: 자기 자신으로 되돌아오는 링크입니다</translation>
    </message>
    <message>
        <source>%1: is not a regular file</source>
        <translation>%1: 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1: is larger than any font</source>
        <translation>%1: 글꼴이라고 하기에는 너무 큽니다</translation>
    </message>
    <message>
        <source>is a WOFF web font, which is not read</source>
        <translation>WOFF 웹 글꼴은 읽지 않습니다</translation>
    </message>
    <message>
        <source>is a WOFF2 web font, which is not read</source>
        <translation>WOFF2 웹 글꼴은 읽지 않습니다</translation>
    </message>
    <message>
        <source>is a Type 1 font, which is not read</source>
        <translation>Type 1 글꼴은 읽지 않습니다</translation>
    </message>
    <message>
        <source>is a BDF bitmap font, which is not read</source>
        <translation>BDF 비트맵 글꼴은 읽지 않습니다</translation>
    </message>
    <message>
        <source>is a PCF bitmap font, which is not read</source>
        <translation>PCF 비트맵 글꼴은 읽지 않습니다</translation>
    </message>
    <message>
        <source>is compressed, which is not read</source>
        <translation>압축된 파일은 읽지 않습니다</translation>
    </message>
    <message>
        <source>is not a font</source>
        <translation>글꼴이 아닙니다</translation>
    </message>
    <message>
        <source>is a collection without faces</source>
        <translation>페이스가 없는 컬렉션입니다</translation>
    </message>
    <message>
        <source>is larger than any font suitcase</source>
        <translation>글꼴 슈트케이스라고 하기에는 너무 큽니다</translation>
    </message>
    <message>
        <source>is a suitcase without outline fonts</source>
        <translation>윤곽선 글꼴이 없는 슈트케이스입니다</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>읽을 수 없습니다</translation>
    </message>
    <message>
        <source>ends within its header</source>
        <translation>헤더 중간에서 끝납니다</translation>
    </message>
    <message>
        <source>holds a face that is not a font</source>
        <translation>글꼴이 아닌 페이스가 들어 있습니다</translation>
    </message>
    <message>
        <source>has a damaged table directory</source>
        <translation>테이블 디렉터리가 손상되었습니다</translation>
    </message>
    <message>
        <source>ends within its table directory</source>
        <translation>테이블 디렉터리 중간에서 끝납니다</translation>
    </message>
    <message>
        <source>is shorter than its header says: %1 lies beyond the end</source>
        <extracomment>%1 is a table of the font, such as &quot;glyf&quot;.</extracomment>
        <translation>헤더에 적힌 것보다 짧습니다: %1 테이블이 파일 끝을 벗어납니다</translation>
    </message>
</context>
<context>
    <name>FontFiles</name>
    <message>
        <source>There is no such file.</source>
        <translation>이 파일이 없습니다.</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>이 파일을 읽을 권한이 없습니다.</translation>
    </message>
    <message>
        <source>This file is too large to be a font.</source>
        <translation>글꼴이라고 하기에는 파일이 너무 큽니다.</translation>
    </message>
    <message>
        <source>This file holds no font that Lorva can show.</source>
        <translation>이 파일에는 Lorva가 표시할 수 있는 글꼴이 없습니다.</translation>
    </message>
    <message>
        <source>This font is damaged and cannot be shown.</source>
        <translation>이 글꼴은 손상되어 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>This file cannot be read from its disk.</source>
        <translation>이 파일을 디스크에서 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>This font has no name, so no program could offer it.</source>
        <translation>이 글꼴에는 이름이 없어 어떤 프로그램에서도 고를 수 없습니다.</translation>
    </message>
    <message>
        <source>Only files of this computer can be shown.</source>
        <translation>이 컴퓨터에 있는 파일만 표시할 수 있습니다.</translation>
    </message>
    <message>
        <source>So many files cannot be shown at once.</source>
        <translation>이렇게 많은 파일을 한 번에 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>활성 아님</translation>
    </message>
    <message>
        <source>Some styles are active</source>
        <translation>일부 스타일이 활성 상태</translation>
    </message>
    <message>
        <source>Active through the system</source>
        <translation>시스템에서 활성</translation>
    </message>
    <message>
        <source>Active, copied to the Fonts folder</source>
        <translation>활성, Fonts 폴더로 복사됨</translation>
    </message>
    <message>
        <source>Active, registered in place</source>
        <translation>활성, 원래 위치에서 등록됨</translation>
    </message>
    <message>
        <source>Another font has this file’s name in the Fonts folder</source>
        <translation>Fonts 폴더에 파일 이름이 같은 다른 글꼴이 있음</translation>
    </message>
    <message>
        <source>Not Shown</source>
        <translation>표시 안 됨</translation>
    </message>
    <message>
        <source>Font Files</source>
        <translation>글꼴 파일</translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>글꼴 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a folder or a device, not a font file.</source>
        <translation>폴더 또는 장치이며 글꼴 파일이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>FontInspector</name>
    <message>
        <source>License</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>Embedding</source>
        <extracomment>Whether documents may embed the font.</extracomment>
        <translation>임베딩</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>Vendor</source>
        <extracomment>Whose web page it is.</extracomment>
        <translation>공급사</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>디자이너</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A language, and the characters of it that the font lacks.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>지원</translation>
    </message>
    <message>
        <source>Languages with Missing Characters</source>
        <translation>일부 문자가 없는 언어</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Whether a family is switched on.</extracomment>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Whether a family is switched on, and whether the system did it.</extracomment>
        <translation>활성</translation>
    </message>
    <message>
        <source>Active (System)</source>
        <translation>활성(시스템)</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>식별자</translation>
    </message>
    <message>
        <source>Family Name</source>
        <translation>패밀리 이름</translation>
    </message>
    <message>
        <source>Style Name</source>
        <translation>스타일 이름</translation>
    </message>
    <message>
        <source>Full Name</source>
        <translation>전체 이름</translation>
    </message>
    <message>
        <source>PostScript Name</source>
        <translation>PostScript 이름</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>제작사</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Whether the family is switched on.</extracomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>The file of a font.</extracomment>
        <translation>위치</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The file format of a font.</extracomment>
        <translation>형식</translation>
    </message>
    <message>
        <source>Glyph Count</source>
        <translation>글리프 수</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Features of a font that belong to no group.</extracomment>
        <translation>기타</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>저작권</translation>
    </message>
</context>
<context>
    <name>FontInspectorService</name>
    <message>
        <source>Italic</source>
        <extracomment>Axes of variable fonts.</extracomment>
        <translation>이탤릭</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>광학 크기</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>기울기</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>굵기</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>폭</translation>
    </message>
    <message>
        <source>TrueType</source>
        <translation>TrueType</translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation>PostScript</translation>
    </message>
    <message>
        <source>OpenType (CFF)</source>
        <translation>OpenType(CFF)</translation>
    </message>
    <message>
        <source>OpenType (TrueType)</source>
        <translation>OpenType(TrueType)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>FontInstallationService</name>
    <message>
        <source>another program is switching fonts on or off</source>
        <translation>다른 프로그램이 글꼴을 켜거나 끄고 있습니다</translation>
    </message>
</context>
<context>
    <name>FontQuizPoster</name>
    <message>
        <source>en</source>
        <extracomment>The language of the translation, such as &quot;de&quot; or &quot;zh_CN&quot;: dates are written in it.</extracomment>
        <translation>ko</translation>
    </message>
    <message>
        <source>MMMM d, yyyy</source>
        <extracomment>How the poster of the quiz writes its date, as &quot;d. MMMM yyyy&quot; or &quot;yyyy年M月d日&quot;; English writes it with ordinals instead.</extracomment>
        <translation>yyyy년 M월 d일</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A style of fonts, and how many fonts have it; spoken.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Fonts organized</source>
        <extracomment>A big number stands below it: so many fonts were organized.</extracomment>
        <translation>정리한 글꼴</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles on %1.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%1, 세리프·산세리프·디스플레이·고정폭·장식 스타일로 하나하나 손수 정리했습니다.

이제 어떤 작업에든 바로 쓸 수 있습니다. 멋지게 만들어 주세요.</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles by %1 on %2.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%2, %1 님이 세리프·산세리프·디스플레이·고정폭·장식 스타일로 하나하나 손수 정리했습니다.

이제 어떤 작업에든 바로 쓸 수 있습니다. 멋지게 만들어 주세요.</translation>
    </message>
</context>
<context>
    <name>FontScanPhase</name>
    <message>
        <source>Finding fonts…</source>
        <translation>글꼴 찾는 중…</translation>
    </message>
    <message numerus="yes">
        <source>Finding fonts… %1</source>
        <translation>
            <numerusform>글꼴 찾는 중… %1개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 fonts</source>
        <translation>
            <numerusform>글꼴 %2개 중 %1개 스캔 중</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Identifying fonts… %1 of %2</source>
        <translation>
            <numerusform>글꼴 식별 중… %2개 중 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>준비 중…</translation>
    </message>
</context>
<context>
    <name>FontsFolderEntries</name>
    <message>
        <source>the file named %1 in the Fonts folder is another font than %2</source>
        <translation>Fonts 폴더에 있는 %1 파일은 %2과(와) 다른 글꼴입니다</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>Usage:</source>
        <extracomment>before the ways in which a command is called, in its help</extracomment>
        <translation>사용법:</translation>
    </message>
</context>
<context>
    <name>HistoryReport</name>
    <message>
        <source>Activated %1</source>
        <translation>%1 활성화</translation>
    </message>
    <message>
        <source>Tried to activate %1</source>
        <translation>%1 활성화 시도</translation>
    </message>
    <message>
        <source>De-activated %1</source>
        <translation>%1 비활성화</translation>
    </message>
    <message>
        <source>Tried to de-activate %1</source>
        <translation>%1 비활성화 시도</translation>
    </message>
    <message>
        <source>Brought back %1</source>
        <translation>%1 복원</translation>
    </message>
    <message>
        <source>Tried to bring back %1</source>
        <translation>%1 복원 시도</translation>
    </message>
    <message>
        <source>Copied to the Fonts folder</source>
        <translation>Fonts 폴더로 복사됨</translation>
    </message>
    <message>
        <source>Registered in place</source>
        <translation>원래 위치에서 등록됨</translation>
    </message>
    <message>
        <source>Copies to the Trash, registrations withdrawn</source>
        <translation>사본은 휴지통으로 이동, 등록은 해제됨</translation>
    </message>
    <message>
        <source>Moved to %1</source>
        <translation>옮긴 곳: %1</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>옮김</translation>
    </message>
    <message>
        <source>De-activation undone</source>
        <translation>비활성화 취소됨</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>파일 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln were there already</source>
        <translation>
            <numerusform>이미 있던 파일 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <extracomment>Files.</extracomment>
        <translation>
            <numerusform>실패 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left when it was stopped</source>
        <translation>
            <numerusform>중단되어 남은 파일 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>How fonts were switched on or off, and the numbers of their files.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Activation History</source>
        <translation>활성화 기록</translation>
    </message>
    <message>
        <source>No font was switched on or off yet.</source>
        <translation>아직 켜거나 끈 글꼴이 없습니다.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
</context>
<context>
    <name>JsonReader</name>
    <message>
        <source>unknown value</source>
        <translation>알 수 없는 값입니다</translation>
    </message>
    <message>
        <source>the integer is out of range</source>
        <translation>정수가 범위를 벗어났습니다</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>키가 중복됩니다</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>문서가 비어 있습니다</translation>
    </message>
    <message>
        <source>invalid UTF-8</source>
        <translation>UTF-8이 올바르지 않습니다</translation>
    </message>
    <message>
        <source>control character in a string</source>
        <translation>문자열에 제어 문자가 있습니다</translation>
    </message>
    <message>
        <source>unclosed string</source>
        <translation>문자열이 닫히지 않았습니다</translation>
    </message>
    <message>
        <source>broken escape in a string</source>
        <translation>문자열의 이스케이프가 잘못되었습니다</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>문서가 너무 큽니다</translation>
    </message>
    <message>
        <source>malformed JSON</source>
        <translation>JSON 형식이 잘못되었습니다</translation>
    </message>
    <message>
        <source>the value was read already</source>
        <translation>값을 이미 읽었습니다</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>너무 깊이 중첩되었습니다</translation>
    </message>
    <message>
        <source>expected a string</source>
        <translation>문자열이어야 합니다</translation>
    </message>
    <message>
        <source>expected an integer</source>
        <translation>정수여야 합니다</translation>
    </message>
    <message>
        <source>expected a number</source>
        <translation>숫자여야 합니다</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>true나 false여야 합니다</translation>
    </message>
    <message>
        <source>broken base64</source>
        <translation>base64가 잘못되었습니다</translation>
    </message>
    <message>
        <source>expected an array</source>
        <translation>배열이어야 합니다</translation>
    </message>
    <message>
        <source>expected an object</source>
        <translation>객체여야 합니다</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>A key that must be there, in a JSON document.</extracomment>
        <translation>키가 없습니다</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>아무것도 읽지 않았습니다</translation>
    </message>
    <message>
        <source>text after the end</source>
        <translation>끝난 뒤에 텍스트가 더 있습니다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A place in a JSON document, and what is wrong there.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>--window-size takes WIDTHxHEIGHT in points, for example 1720x920</source>
        <translation>--window-size에는 WIDTHxHEIGHT를 포인트 단위로 씁니다. 예: 1720x920</translation>
    </message>
    <message>
        <source>--view takes grid or list</source>
        <translation>--view에는 grid나 list를 씁니다</translation>
    </message>
    <message>
        <source>--color takes white, black, custom or image</source>
        <translation>--color에는 white, black, custom, image 중 하나를 씁니다</translation>
    </message>
    <message>
        <source>--sheet takes activate, deactivate, history or settings</source>
        <translation>--sheet에는 activate, deactivate, history, settings 중 하나를 씁니다</translation>
    </message>
    <message>
        <source>--stage takes text, waterfall or comparison</source>
        <translation>--stage에는 text, waterfall, comparison 중 하나를 씁니다</translation>
    </message>
    <message>
        <source>--inspector takes features or info</source>
        <translation>--inspector에는 features나 info를 씁니다</translation>
    </message>
    <message>
        <source>--quiz takes intro, playing or poster</source>
        <translation>--quiz에는 intro, playing, poster 중 하나를 씁니다</translation>
    </message>
    <message>
        <source>--welcome takes scene or card</source>
        <translation>--welcome에는 scene이나 card를 씁니다</translation>
    </message>
    <message>
        <source>--appearance takes light or dark</source>
        <translation>--appearance에는 light나 dark를 씁니다</translation>
    </message>
    <message>
        <source>--source takes all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>--source에는 all, active, inactive, style:ID, collection:NAME, foundry:ID, discover 중 하나를 씁니다</translation>
    </message>
    <message>
        <source>--image takes one of: %1</source>
        <translation>--image에는 다음 중 하나를 씁니다: %1</translation>
    </message>
    <message>
        <source>--weight takes a number from 100 to 900</source>
        <translation>--weight에는 100부터 900까지의 수를 씁니다</translation>
    </message>
    <message>
        <source>--point-size takes a positive number of points</source>
        <translation>--point-size에는 양수를 포인트 단위로 씁니다</translation>
    </message>
    <message>
        <source>add the fonts of a folder for this start (repeatable)</source>
        <translation>이번 실행에 폴더의 글꼴 추가(여러 번 쓸 수 있음)</translation>
    </message>
    <message>
        <source>start in all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>all, active, inactive, style:ID, collection:NAME, foundry:ID, discover 중 하나로 시작</translation>
    </message>
    <message>
        <source>start with this text in the search field</source>
        <translation>검색란에 이 텍스트를 넣고 시작</translation>
    </message>
    <message>
        <source>start with this family selected</source>
        <translation>이 패밀리를 선택하고 시작</translation>
    </message>
    <message>
        <source>open this family in the detail view</source>
        <translation>이 패밀리를 상세 보기로 열기</translation>
    </message>
    <message>
        <source>show it as text, waterfall or comparison there</source>
        <translation>상세 보기에 텍스트, 워터폴, 비교 중 하나로 표시</translation>
    </message>
    <message>
        <source>show its features or info beside it</source>
        <translation>옆에 기능이나 정보 표시</translation>
    </message>
    <message>
        <source>start in the font quiz: its intro, playing or its poster</source>
        <translation>글꼴 퀴즈로 시작: 소개, 진행, 포스터</translation>
    </message>
    <message>
        <source>show the welcome, whether it was seen before or not</source>
        <translation>이미 보았더라도 환영 화면 표시</translation>
    </message>
    <message>
        <source>do not show it</source>
        <translation>환영 화면 표시 안 함</translation>
    </message>
    <message>
        <source>start in this view</source>
        <translation>이 보기로 시작</translation>
    </message>
    <message>
        <source>start with specimens of this size, in points</source>
        <translation>이 크기의 견본으로 시작(포인트)</translation>
    </message>
    <message>
        <source>start with specimens of this weight, 100 to 900</source>
        <translation>이 굵기의 견본으로 시작(100~900)</translation>
    </message>
    <message>
        <source>start with white, black or custom colours, or an image</source>
        <translation>흰색, 검은색, 사용자 지정 색상이나 이미지로 시작</translation>
    </message>
    <message>
        <source>start with this background image (--color image)</source>
        <translation>이 배경 이미지로 시작(--color image)</translation>
    </message>
    <message>
        <source>start with this image as logo</source>
        <translation>이 이미지를 로고로 하여 시작</translation>
    </message>
    <message>
        <source>start with this sample text</source>
        <translation>이 견본 글로 시작</translation>
    </message>
    <message>
        <source>light or dark, whatever the desktop is</source>
        <translation>데스크톱과 상관없이 밝게 또는 어둡게</translation>
    </message>
    <message>
        <source>show the window off screen, write its picture as PNG, and quit</source>
        <translation>창을 화면 밖에 띄워 그림을 PNG로 쓰고 끝내기</translation>
    </message>
    <message>
        <source>size of that picture, in points (default 1720x920, of font files 1160x760)</source>
        <translation>그 그림의 크기(포인트, 기본값 1720x920, 글꼴 파일은 1160x760)</translation>
    </message>
    <message>
        <source>open activate, deactivate (for --select), history or settings for it</source>
        <translation>그 그림을 위해 activate, deactivate(--select와 함께), history, settings 중 하나 열기</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>버전 출력</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>이 도움말 출력</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>알 수 없는 인수 “%1”</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1에는 값이 필요합니다</translation>
    </message>
    <message>
        <source>If Lorva runs already, its window comes to the front and takes the options over.</source>
        <translation>Lorva가 이미 실행 중이면 그 창이 앞으로 나와 옵션을 넘겨받습니다.</translation>
    </message>
    <message>
        <source>QT_SCALE_FACTOR=2 makes the picture twice as dense. QT_LOGGING_RULES=&quot;lorva.*=true&quot; logs.</source>
        <translation>QT_SCALE_FACTOR=2를 주면 그림이 두 배로 촘촘해집니다. QT_LOGGING_RULES=&quot;lorva.*=true&quot;를 주면 로그를 남깁니다.</translation>
    </message>
    <message>
        <source>LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events.</source>
        <translation>LORVA_TRACE=FILE을 주면 시작할 때 시간이 어디에 쓰이는지 Chrome 추적 이벤트로 기록합니다.</translation>
    </message>
    <message>
        <source>Usage: lorva [options] [FILE|FOLDER]...</source>
        <extracomment>Options begin with &quot;--&quot;, and words in capitals stand for what is typed after them; both, and the words that an option takes, stay as they are.</extracomment>
        <translation>사용법: lorva [옵션] [FILE|FOLDER]...</translation>
    </message>
    <message>
        <source>Shows every font of this computer as a live specimen; font files that are given, by path or as a file: address, in a window of their own.</source>
        <translation>이 컴퓨터의 모든 글꼴을 살아 있는 견본으로 보여 줍니다. 경로나 file: 주소로 글꼴 파일을 지정하면 별도의 창에 보여 줍니다.</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the words that an option takes.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>LinkFolderRegistrar</name>
    <message>
        <source>The font cannot be registered: %1</source>
        <translation>글꼴을 등록할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The registration cannot be withdrawn: %1</source>
        <translation>등록을 해제할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The font is registered already</source>
        <translation>이미 등록된 글꼴입니다</translation>
    </message>
    <message>
        <source>The font is not registered</source>
        <translation>등록되지 않은 글꼴입니다</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>절대 경로가 아닙니다</translation>
    </message>
    <message>
        <source>something else has the name of its link</source>
        <translation>링크 이름을 다른 것이 쓰고 있습니다</translation>
    </message>
</context>
<context>
    <name>LogoImage</name>
    <message>
        <source>The image could not be kept.</source>
        <translation>이미지를 보관하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>Show Logo</source>
        <translation>로고 표시</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Of a logo, compared with the letters beside it.</extracomment>
        <translation>크기</translation>
    </message>
    <message>
        <source>Spacing</source>
        <extracomment>Between a logo and the letters beside it.</extracomment>
        <translation>간격</translation>
    </message>
    <message>
        <source>The logo cannot be read</source>
        <translation>로고를 읽을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>LogoTile</name>
    <message>
        <source>Logo</source>
        <translation>로고</translation>
    </message>
    <message>
        <source>Choose another image</source>
        <translation>다른 이미지 선택</translation>
    </message>
    <message>
        <source>Drop an image here, or click to choose one.</source>
        <translation>이미지를 끌어다 놓거나 클릭해서 선택하세요.</translation>
    </message>
</context>
<context>
    <name>LorvaAppModelFolders</name>
    <message>
        <source>%1 is no UTF-8 text and cannot be kept in the preferences</source>
        <translation>%1은(는) UTF-8 텍스트가 아니어서 환경설정에 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no watched folder with the id %1</source>
        <translation>ID가 %1인 감시 폴더가 없습니다</translation>
    </message>
</context>
<context>
    <name>OrganizationAlerts</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Delete Collection?</source>
        <translation>모음을 삭제할까요?</translation>
    </message>
    <message>
        <source>This removes the collection but keeps the fonts on your Mac.</source>
        <translation>모음만 지워지고 글꼴은 이 컴퓨터에 그대로 남습니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Hide “%1”?</source>
        <translation>“%1” 숨길까요?</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>이 파운드리를 사이드바에서 숨깁니다.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>숨기기</translation>
    </message>
    <message>
        <source>This Change Is Not Possible</source>
        <translation>이 변경은 할 수 없습니다</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>OrganizationChanges</name>
    <message>
        <source>there is no collection with the id “%1”</source>
        <translation>ID가 “%1”인 모음이 없습니다</translation>
    </message>
    <message>
        <source>there is a collection with the name “%1” already</source>
        <translation>이름이 “%1”인 모음이 이미 있습니다</translation>
    </message>
    <message>
        <source>there is a collection with the id “%1” already</source>
        <translation>ID가 “%1”인 모음이 이미 있습니다</translation>
    </message>
    <message>
        <source>there is no style category with the id “%1”</source>
        <translation>ID가 “%1”인 스타일이 없습니다</translation>
    </message>
    <message>
        <source>there is a style category with the name “%1” already</source>
        <translation>이름이 “%1”인 스타일이 이미 있습니다</translation>
    </message>
    <message>
        <source>there is a style category with the id “%1” already</source>
        <translation>ID가 “%1”인 스타일이 이미 있습니다</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>the style category “%1” cannot be renamed or deleted</source>
        <translation>“%1” 스타일은 이름을 바꾸거나 삭제할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>OrganizationFile</name>
    <message>
        <source>the name is empty</source>
        <translation>이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>format: expected &quot;%1&quot;</source>
        <translation>format: “%1” 값이 필요합니다</translation>
    </message>
    <message>
        <source>version: there is no such version</source>
        <translation>version: 그런 버전은 없습니다</translation>
    </message>
    <message>
        <source>the file is of version %1, which needs a newer Lorva</source>
        <translation>파일의 버전이 %1입니다. 더 새로운 Lorva가 필요합니다</translation>
    </message>
    <message>
        <source>the organisation takes %1 bytes as a file, and no more than %2 can be imported; the logos in display settings may be too many</source>
        <translation>정리 내용의 파일 크기는 %1바이트인데 %2바이트까지만 가져올 수 있습니다. 보기 설정에 로고가 너무 많은 것 같습니다</translation>
    </message>
</context>
<context>
    <name>OrganizationStore</name>
    <message>
        <source>the preferences took no change</source>
        <translation>환경설정에 변경 내용을 쓰지 못했습니다</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 문서</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG 그림</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 그림</translation>
    </message>
</context>
<context>
    <name>PaneTexts</name>
    <message>
        <source>Active</source>
        <extracomment>A heading: fonts that are switched on for every program.</extracomment>
        <translation>활성</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>A heading: fonts that are not switched on.</extracomment>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A heading: a page that introduces type foundries.</extracomment>
        <translation>둘러보기</translation>
    </message>
    <message>
        <source>All Fonts</source>
        <translation>모든 글꼴</translation>
    </message>
    <message>
        <source>No Inactive Fonts</source>
        <translation>비활성 글꼴 없음</translation>
    </message>
    <message>
        <source>Every font in your folders is switched on.</source>
        <translation>폴더에 있는 글꼴이 모두 켜져 있습니다.</translation>
    </message>
    <message>
        <source>Watch a folder to see the fonts in it without switching them on.</source>
        <translation>폴더를 감시하면 글꼴을 켜지 않고도 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>No Fonts Here</source>
        <translation>글꼴 없음</translation>
    </message>
    <message>
        <source>None of the families that belong here are on this computer.</source>
        <translation>여기에 속한 패밀리가 이 컴퓨터에 하나도 없습니다.</translation>
    </message>
    <message>
        <source>An Empty Collection</source>
        <translation>빈 모음</translation>
    </message>
    <message>
        <source>Drag fonts onto it in the sidebar, or choose it in a font’s menu.</source>
        <translation>글꼴을 사이드바의 이 모음으로 끌어다 놓거나 글꼴의 메뉴에서 모음을 선택하세요.</translation>
    </message>
    <message>
        <source>No Active Fonts</source>
        <translation>활성 글꼴 없음</translation>
    </message>
    <message>
        <source>Fonts that every program can use appear here.</source>
        <translation>모든 프로그램에서 쓸 수 있는 글꼴이 여기에 나타납니다.</translation>
    </message>
    <message>
        <source>No Fonts of This Style</source>
        <translation>이 스타일의 글꼴 없음</translation>
    </message>
    <message>
        <source>Choose the style in a font’s menu, or drag fonts onto it in the sidebar.</source>
        <translation>글꼴의 메뉴에서 스타일을 선택하거나 글꼴을 사이드바의 스타일로 끌어다 놓으세요.</translation>
    </message>
    <message>
        <source>None of this foundry’s families are on this computer.</source>
        <translation>이 파운드리의 패밀리가 이 컴퓨터에 하나도 없습니다.</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>글꼴 없음</translation>
    </message>
    <message>
        <source>Neither this system nor your folders hold a font that can be read.</source>
        <translation>시스템에도 폴더에도 읽을 수 있는 글꼴이 없습니다.</translation>
    </message>
    <message>
        <source>Scan Cancelled</source>
        <translation>스캔 취소됨</translation>
    </message>
    <message>
        <source>Press F5 to look for the fonts of this system and of your folders again.</source>
        <translation>F5를 누르면 시스템과 폴더의 글꼴을 다시 찾습니다.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>There is nothing to export</source>
        <translation>내보낼 것이 없습니다</translation>
    </message>
    <message>
        <source>The page is too large for a file</source>
        <translation>페이지가 너무 커서 파일에 담을 수 없습니다</translation>
    </message>
    <message>
        <source>The page is too large for a PNG; a PDF or SVG can hold it</source>
        <translation>페이지가 너무 커서 PNG에 담을 수 없습니다. PDF나 SVG에는 담을 수 있습니다</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>그림을 인코딩할 수 없습니다</translation>
    </message>
    <message>
        <source>the picture does not fit into memory</source>
        <translation>그림이 메모리에 들어가지 않습니다</translation>
    </message>
    <message>
        <source>%1: the name of a picture ends in .png, .svg or .pdf</source>
        <translation>%1: 그림의 이름은 .png, .svg, .pdf 중 하나로 끝나야 합니다</translation>
    </message>
    <message>
        <source>%1: refusing to write over a font file</source>
        <translation>%1: 글꼴 파일은 덮어쓰지 않습니다</translation>
    </message>
</context>
<context>
    <name>PreferenceDatabase</name>
    <message>
        <source>the file cannot be written</source>
        <translation>파일을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>another process is moving a damaged file</source>
        <translation>다른 프로세스가 손상된 파일을 옮기고 있습니다</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>데이터베이스가 손상되었습니다</translation>
    </message>
</context>
<context>
    <name>PreferenceFile</name>
    <message>
        <source>%1: %2</source>
        <extracomment>A file, and what is wrong with it.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Specimen</source>
        <translation>견본</translation>
    </message>
</context>
<context>
    <name>RecordsJson</name>
    <message>
        <source>%1 is no colour mode</source>
        <translation>%1은(는) 색상 모드가 아닙니다</translation>
    </message>
</context>
<context>
    <name>ReleaseFeed</name>
    <message>
        <source>the release feed cannot be read: %1</source>
        <translation>릴리스 피드를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>version: expected numbers with dots between them</source>
        <translation>version: 점으로 구분한 숫자여야 합니다</translation>
    </message>
    <message>
        <source>date: expected a day such as 2026-11-22</source>
        <translation>date: 2026-11-22와 같은 날짜여야 합니다</translation>
    </message>
    <message>
        <source>page: expected an https address</source>
        <translation>page: https 주소여야 합니다</translation>
    </message>
    <message>
        <source>the release feed is made for a newer Lorva: its format is %1, not %2</source>
        <translation>릴리스 피드가 더 새로운 Lorva용입니다: 형식이 %2이(가) 아니라 %1입니다</translation>
    </message>
    <message>
        <source>the release feed is about another product</source>
        <translation>다른 제품의 릴리스 피드입니다</translation>
    </message>
    <message>
        <source>the release feed&apos;s key is not 32 bytes in Base64</source>
        <translation>릴리스 피드의 키가 Base64로 적은 32바이트가 아닙니다</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>릴리스 피드가 너무 큽니다</translation>
    </message>
    <message>
        <source>the release feed is not signed by the makers of Lorva</source>
        <translation>릴리스 피드에 Lorva 제작자의 서명이 없습니다</translation>
    </message>
</context>
<context>
    <name>Restoration</name>
    <message>
        <source>It is not in the Trash any more</source>
        <translation>휴지통에 더는 없습니다</translation>
    </message>
    <message>
        <source>Another file has taken its place</source>
        <translation>다른 파일이 그 자리에 있습니다</translation>
    </message>
</context>
<context>
    <name>RunLock</name>
    <message>
        <source>cannot lock %1: another process holds it</source>
        <translation>%1을(를) 잠글 수 없습니다: 다른 프로세스가 쓰고 있습니다</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1은(는) 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>파일을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>the file&apos;s path is no UTF-8 text</source>
        <translation>파일 경로가 UTF-8 텍스트가 아닙니다</translation>
    </message>
</context>
<context>
    <name>SafeImage</name>
    <message>
        <source>The picture has too many pixels to be read</source>
        <translation>그림의 픽셀이 너무 많아 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read</source>
        <translation>그림이 손상되어 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>This is no picture in a format that can be read (PNG, JPEG, GIF, WebP, BMP or SVG)</source>
        <translation>읽을 수 있는 형식의 그림이 아닙니다(PNG, JPEG, GIF, WebP, BMP, SVG만 가능)</translation>
    </message>
    <message>
        <source>Pictures in this format need an addition to the desktop’s toolkit that is not installed</source>
        <translation>이 형식의 그림을 읽으려면 데스크톱 툴킷의 추가 구성 요소를 설치해야 합니다</translation>
    </message>
    <message>
        <source>The file is too large to be read as a picture</source>
        <translation>파일이 너무 커서 그림으로 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>no room for a picture</source>
        <translation>그림을 둘 공간이 없습니다</translation>
    </message>
    <message>
        <source>The drawing is damaged and cannot be read</source>
        <translation>그림이 손상되어 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>The drawing is too complicated to be shown</source>
        <translation>그림이 너무 복잡하여 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>no memory for the drawing</source>
        <translation>그림을 그릴 메모리가 없습니다</translation>
    </message>
</context>
<context>
    <name>SampleTextPanel</name>
    <message>
        <source>Reset Look</source>
        <translation>모양 재설정</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>견본 글</translation>
    </message>
    <message>
        <source>Blank: a sentence for each script</source>
        <translation>비워 두면 문자 체계별 문장</translation>
    </message>
    <message>
        <source>Size, weight, colors, logo and text as they were at first</source>
        <translation>크기, 굵기, 색상, 로고, 글을 처음 상태로 되돌리기</translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Latin</source>
        <extracomment>Sample texts in this script.</extracomment>
        <translation>라틴 문자</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>그리스 문자</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>키릴 문자</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>아랍 문자</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>히브리 문자</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>데바나가리 문자</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>타이 문자</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>일본어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>중국어 간체</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>중국어 번체</translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>“%1” is not there.</source>
        <translation>“%1” 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>“%1”은(는) 폴더가 아닙니다.</translation>
    </message>
    <message>
        <source>You do not have permission to look into “%1”.</source>
        <translation>“%1” 폴더를 볼 권한이 없습니다.</translation>
    </message>
    <message>
        <source>“%1” has a name that is not valid text, so it cannot be remembered.</source>
        <translation>“%1” 이름이 올바른 텍스트가 아니어서 기억해 둘 수 없습니다.</translation>
    </message>
    <message>
        <source>“%1” could not be looked at.</source>
        <translation>“%1” 폴더를 살펴보지 못했습니다.</translation>
    </message>
    <message>
        <source>Scanning fonts…</source>
        <translation>글꼴 스캔 중…</translation>
    </message>
    <message>
        <source>No new fonts added</source>
        <translation>새로 추가된 글꼴 없음</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t find any new fonts in the selected location.</source>
        <translation>선택한 위치에서 새 글꼴을 찾지 못했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Added %1 fonts</source>
        <translation>
            <numerusform>글꼴 %1개 추가됨</numerusform>
        </translation>
    </message>
    <message>
        <source>You can find them in your library.</source>
        <translation>라이브러리에서 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Choose one or more folders of font files to include in your library.</source>
        <translation>라이브러리에 넣을 글꼴 파일 폴더를 하나 이상 선택하세요.</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>감시</translation>
    </message>
    <message numerus="yes">
        <source>%1 more folders could not be added.</source>
        <translation>
            <numerusform>다른 폴더 %1개도 추가하지 못했습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SidebarActions</name>
    <message>
        <source>New Collection</source>
        <translation>새 모음</translation>
    </message>
</context>
<context>
    <name>SidebarTree</name>
    <message>
        <source>Library</source>
        <translation>라이브러리</translation>
    </message>
    <message>
        <source>Styles</source>
        <extracomment>The style categories of fonts: Serif, Script and so on.</extracomment>
        <translation>스타일</translation>
    </message>
    <message>
        <source>Foundries</source>
        <translation>파운드리</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>모음</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>스타일</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>파운드리</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>모음</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Every font there is, in the sidebar.</extracomment>
        <translation>전체</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Fonts that are switched on for every program, in the sidebar.</extracomment>
        <translation>활성</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Fonts that are not switched on, in the sidebar.</extracomment>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A page that introduces type foundries, in the sidebar.</extracomment>
        <translation>둘러보기</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>카탈로그</translation>
    </message>
    <message>
        <source>Organize</source>
        <extracomment>Opens the quiz in which fonts are put into styles, in the sidebar.</extracomment>
        <translation>정리</translation>
    </message>
</context>
<context>
    <name>StoredGroupings</name>
    <message>
        <source>Untitled</source>
        <translation>제목 없음</translation>
    </message>
</context>
<context>
    <name>StyleActivations</name>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>So many styles, at the end of a list of their names.</extracomment>
        <translation>
            <numerusform>그 밖의 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleCategories</name>
    <message>
        <source>Serif</source>
        <translation>세리프</translation>
    </message>
    <message>
        <source>Sans-Serif</source>
        <translation>산세리프</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>A style of fonts: those for large sizes.</extracomment>
        <translation>디스플레이</translation>
    </message>
    <message>
        <source>Mono</source>
        <extracomment>A style of fonts: those whose letters are all of one width.</extracomment>
        <translation>고정폭</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>A style of fonts: those that look like handwriting.</extracomment>
        <translation>스크립트</translation>
    </message>
    <message>
        <source>Decorative</source>
        <extracomment>A style of fonts.</extracomment>
        <translation>장식</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>cannot empty %1: %2</source>
        <translation>%1을(를) 비울 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot empty the trace %1: %2</source>
        <extracomment>The trace says where the program spent its time.</extracomment>
        <translation>추적 파일 %1을(를) 비울 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot find %1: %2</source>
        <translation>%1을(를) 찾을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot lock %1: %2</source>
        <translation>%1을(를) 잠글 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>%1을(를) 살펴볼 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>%1을(를) 만들 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot move %1: %2</source>
        <translation>%1을(를) 옮길 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot move to the Trash %1: %2</source>
        <translation>%1을(를) 휴지통으로 옮길 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot remove %1: %2</source>
        <translation>%1을(를) 제거할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot take from the Trash %1: %2</source>
        <translation>%1을(를) 휴지통에서 꺼낼 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot write the trace %1: %2</source>
        <translation>추적 파일 %1을(를) 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>Trace</name>
    <message>
        <source>cannot write the trace %1: not a regular file</source>
        <translation>추적 파일 %1을(를) 쓸 수 없습니다: 일반 파일이 아닙니다</translation>
    </message>
</context>
<context>
    <name>UndoableDeactivation</name>
    <message>
        <source>De-activate %1</source>
        <translation>%1 비활성화</translation>
    </message>
</context>
<context>
    <name>UpdateAlerts</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Details: %1.</source>
        <translation>자세한 내용: %1.</translation>
    </message>
    <message>
        <source>Lorva Couldn’t Check for Updates</source>
        <translation>업데이트를 확인하지 못했습니다</translation>
    </message>
    <message>
        <source>The server that announces new versions can’t be reached. Check your internet connection, then try again.</source>
        <translation>새 버전을 알리는 서버에 연결할 수 없습니다. 인터넷 연결을 확인하고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The server that announces new versions took too long to answer. Try again in a while.</source>
        <translation>새 버전을 알리는 서버의 응답이 너무 오래 걸렸습니다. 잠시 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The server that announces new versions has none to announce right now. Try again in a while.</source>
        <translation>새 버전을 알리는 서버에 지금은 알릴 버전이 없습니다. 잠시 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The connection to the server that announces new versions is not secure, so nothing was read from it. If you are on a public network, try again on another one.</source>
        <translation>새 버전을 알리는 서버와의 연결이 안전하지 않아 아무것도 읽지 않았습니다. 공용 네트워크를 쓰고 있다면 다른 네트워크에서 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The answer does not come from the makers of Lorva, so it was not believed. Try again on another network.</source>
        <translation>Lorva 제작자가 보낸 응답이 아니어서 믿지 않았습니다. 다른 네트워크에서 다시 시도하세요.</translation>
    </message>
    <message>
        <source>New versions are announced in a way that this version is too old to understand. Look for a newer one where you got Lorva.</source>
        <translation>지금 버전은 너무 오래되어 새 버전을 알리는 방식을 이해하지 못합니다. Lorva를 받은 곳에서 더 새로운 버전을 찾아보세요.</translation>
    </message>
    <message>
        <source>The server announces another program. Look for a newer version where you got Lorva.</source>
        <translation>서버가 다른 프로그램을 알리고 있습니다. Lorva를 받은 곳에서 더 새로운 버전을 찾아보세요.</translation>
    </message>
    <message>
        <source>The answer can’t be understood. Some networks answer in the server’s place until you sign in: open a web page, then try again.</source>
        <translation>응답을 이해할 수 없습니다. 로그인하기 전까지 서버 대신 응답하는 네트워크도 있습니다. 웹 페이지를 연 다음 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Version %1 was released on %2. You have version %3.</source>
        <translation>버전 %1이(가) %2에 나왔습니다. 지금 버전은 %3입니다.</translation>
    </message>
    <message>
        <source>Lorva %1 Is Available</source>
        <translation>Lorva %1 사용 가능</translation>
    </message>
    <message>
        <source>Open Release Page</source>
        <translation>릴리스 페이지 열기</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>You’re Up to Date</source>
        <translation>최신 버전입니다</translation>
    </message>
    <message>
        <source>There is no newer version than yours, Lorva %1.</source>
        <translation>지금 쓰는 Lorva %1보다 새로운 버전이 없습니다.</translation>
    </message>
    <message>
        <source>Updates Come with Your System</source>
        <translation>업데이트는 시스템이 제공합니다</translation>
    </message>
    <message>
        <source>This copy of Lorva does not look for new versions by itself: your system’s software updates bring new versions.</source>
        <translation>이 Lorva는 스스로 새 버전을 찾지 않습니다. 새 버전은 시스템의 소프트웨어 업데이트로 제공됩니다.</translation>
    </message>
    <message>
        <source>This copy of Lorva was not told properly where new versions are announced. Your system’s software updates, or the place where you got Lorva, bring new versions.</source>
        <translation>이 Lorva는 새 버전을 어디서 알리는지 제대로 알지 못합니다. 새 버전은 시스템의 소프트웨어 업데이트나 Lorva를 받은 곳에서 제공됩니다.</translation>
    </message>
</context>
<context>
    <name>WatchedFolderStore</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1은(는) 폴더가 아닙니다</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1은(는) 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1 cannot be made: a file has that name</source>
        <translation>%1을(를) 만들 수 없습니다: 같은 이름의 파일이 있습니다</translation>
    </message>
</context>
<context>
    <name>WindowPicture</name>
    <message>
        <source>the picture could not be encoded</source>
        <translation>그림을 인코딩하지 못했습니다</translation>
    </message>
</context>
<context>
    <name>Withdrawal</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1은(는) 폴더가 아닙니다</translation>
    </message>
    <message>
        <source>%1 lies in a Fonts folder, where fonts are active</source>
        <translation>%1은(는) 글꼴이 활성화되는 Fonts 폴더 안에 있습니다</translation>
    </message>
</context>
<context>
    <name>lorva</name>
    <message>
        <source>no display to open a window on; start it in a desktop session, or make a picture with --screenshot FILE</source>
        <translation>창을 열 디스플레이가 없습니다. 데스크톱 세션에서 시작하거나 --screenshot FILE로 그림을 만드세요</translation>
    </message>
    <message>
        <source>%1; see lorva --help</source>
        <translation>%1. lorva --help를 보세요</translation>
    </message>
</context>
<context>
    <name>lorva::AxisRow</name>
    <message>
        <source>%1, value</source>
        <extracomment>The value of an axis of a variable font, such as Weight; spoken.</extracomment>
        <translation>%1, 값</translation>
    </message>
</context>
<context>
    <name>lorva::BarDisplayControls</name>
    <message>
        <source>Logo</source>
        <translation>로고</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>A logo is shown.</source>
        <translation>로고를 표시하고 있습니다.</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>사용자 지정 색상</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserCollectionView</name>
    <message>
        <source>Fonts</source>
        <translation>글꼴</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserEmptyStateView</name>
    <message>
        <source>Watch Folder…</source>
        <translation>폴더 감시…</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>결과 없음</translation>
    </message>
    <message>
        <source>No fonts match “%1”.</source>
        <translation>“%1”에 맞는 글꼴이 없습니다.</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserTopBar</name>
    <message>
        <source>Size and Weight</source>
        <translation>크기와 굵기</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>견본 글</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>How the fonts are shown, as a noun; spoken.</extracomment>
        <translation>보기</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>격자</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>목록</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterCellsView</name>
    <message>
        <source>Characters</source>
        <translation>문자</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>A character, and what is known of it.</extracomment>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterGridView</name>
    <message>
        <source>Characters or glyphs</source>
        <translation>문자 또는 글리프</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>문자</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>글리프</translation>
    </message>
    <message numerus="yes">
        <source>%1 found</source>
        <extracomment>Characters or glyphs.</extracomment>
        <translation>
            <numerusform>%1개 찾음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 glyphs</source>
        <translation>
            <numerusform>글리프 %1개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>문자 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>No Glyphs Found</source>
        <translation>글리프를 찾을 수 없음</translation>
    </message>
    <message>
        <source>No Characters Found</source>
        <translation>문자를 찾을 수 없음</translation>
    </message>
    <message>
        <source>This face has no glyphs.</source>
        <translation>이 페이스에는 글리프가 없습니다.</translation>
    </message>
    <message>
        <source>This face has no characters.</source>
        <translation>이 페이스에는 문자가 없습니다.</translation>
    </message>
    <message>
        <source>Copy Character</source>
        <translation>문자 복사</translation>
    </message>
    <message>
        <source>Copy Code Point</source>
        <translation>코드 포인트 복사</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>이름 복사</translation>
    </message>
    <message>
        <source>Copy Glyph Name</source>
        <translation>글리프 이름 복사</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>트레이에 담기</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>%1 복사됨</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterPopoverViewController</name>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>이 글리프로 이어지는 문자가 없습니다.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The kind of a character, and the block that it belongs to.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Code Point</source>
        <translation>코드 포인트</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>글리프</translation>
    </message>
    <message>
        <source>Glyph Name</source>
        <translation>글리프 이름</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>트레이에 담기</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterTrayView</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>비우기</translation>
    </message>
    <message>
        <source>Tray: %1</source>
        <extracomment>Characters that were collected, to be copied together.</extracomment>
        <translation>트레이: %1</translation>
    </message>
</context>
<context>
    <name>lorva::ColorChooser</name>
    <message>
        <source>Color Code</source>
        <translation>색상 코드</translation>
    </message>
</context>
<context>
    <name>lorva::ColorModeChips</name>
    <message>
        <source>White</source>
        <translation>흰색</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>검은색</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>사용자 지정 색상</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>배경 이미지</translation>
    </message>
</context>
<context>
    <name>lorva::ComparisonView</name>
    <message>
        <source>Add Family…</source>
        <translation>패밀리 추가…</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>배치</translation>
    </message>
    <message>
        <source>Beside</source>
        <extracomment>How the compared families are arranged: beside each other.</extracomment>
        <translation>나란히</translation>
    </message>
    <message>
        <source>Overlaid</source>
        <extracomment>How the compared families are arranged: one over the other.</extracomment>
        <translation>겹쳐서</translation>
    </message>
    <message>
        <source>Match</source>
        <extracomment>What the compared families have in common: their size or their x-height; spoken.</extracomment>
        <translation>맞춤 기준</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>같은 크기</translation>
    </message>
    <message>
        <source>Same x-Height</source>
        <translation>같은 x높이</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 제거</translation>
    </message>
    <message>
        <source>Add Family</source>
        <translation>패밀리 추가</translation>
    </message>
</context>
<context>
    <name>lorva::DetailPreviewView</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>lorva::DetailTopBar</name>
    <message>
        <source>Text</source>
        <extracomment>Shows the family as one text that can be edited.</extracomment>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <extracomment>Shows the same text in ever smaller sizes.</extracomment>
        <translation>워터폴</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Shows several families together.</extracomment>
        <translation>비교</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>이전 패밀리</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>다음 패밀리</translation>
    </message>
    <message>
        <source>Size, Weight, Letter Spacing</source>
        <translation>크기, 굵기, 자간</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>인스펙터</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Search Characters</source>
        <translation>문자 검색</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverFoundryItem</name>
    <message>
        <source>Visit %1</source>
        <translation>%1 방문</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverLinkButton</name>
    <message>
        <source>Visit</source>
        <extracomment>Opens the web page of a foundry.</extracomment>
        <translation>방문</translation>
    </message>
    <message>
        <source>Open Website</source>
        <translation>웹사이트 열기</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverViewController</name>
    <message>
        <source>Discover</source>
        <translation>둘러보기</translation>
    </message>
    <message>
        <source>Type Foundries</source>
        <translation>서체 파운드리</translation>
    </message>
</context>
<context>
    <name>lorva::FamilyPicker</name>
    <message>
        <source>Families</source>
        <translation>패밀리</translation>
    </message>
    <message>
        <source>No Families</source>
        <translation>패밀리 없음</translation>
    </message>
    <message>
        <source>Search Families</source>
        <translation>패밀리 검색</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The group of a font&apos;s feature, and what the feature does; spoken.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureTip</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A feature of a font, and its tag; spoken.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lorva::FontBrowserViewController</name>
    <message>
        <source>, </source>
        <extracomment>Between what is said of a family&apos;s card; spoken.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lorva::FontCardContentView</name>
    <message numerus="yes">
        <source>%Ln styles</source>
        <extracomment>The fonts of a family, such as Bold. English says &quot;1 styles&quot;, too.</extracomment>
        <translation>
            <numerusform>스타일 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesBar</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <translation>워터폴</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>인스펙터</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesFooter</name>
    <message>
        <source>Files That Failed…</source>
        <translation>실패한 파일…</translation>
    </message>
    <message>
        <source>Show in Lorva</source>
        <translation>Lorva에서 보기</translation>
    </message>
    <message>
        <source>Activate All…</source>
        <translation>모두 활성화…</translation>
    </message>
    <message>
        <source>De-activate…</source>
        <translation>비활성화…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>나머지 스타일 활성화…</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>활성화…</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesList</name>
    <message>
        <source>Fonts in the Files</source>
        <translation>파일에 든 글꼴</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between what is said of a font in the list; spoken.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesWindow</name>
    <message>
        <source>Reading Files</source>
        <translation>파일 읽는 중</translation>
    </message>
    <message>
        <source>The fonts will be here in a moment.</source>
        <translation>잠시 후 글꼴이 표시됩니다.</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>글꼴 없음</translation>
    </message>
    <message>
        <source>None of these files could be opened.</source>
        <translation>이 파일들을 하나도 열 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A family, and one of its styles.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>lorva::FontIndexingSheetController</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
</context>
<context>
    <name>lorva::FontInspectorViewController</name>
    <message>
        <source>Inspector</source>
        <translation>인스펙터</translation>
    </message>
    <message>
        <source>Features</source>
        <extracomment>The OpenType features of a font.</extracomment>
        <translation>기능</translation>
    </message>
    <message>
        <source>Info</source>
        <extracomment>Facts about a font.</extracomment>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>lorva::FontInstallSheetController</name>
    <message>
        <source>Choose how to activate this font family in macOS. Both methods make it available in every app on your Mac.</source>
        <translation>이 글꼴 패밀리를 활성화할 방법을 선택하세요. 어느 쪽이든 이 컴퓨터의 모든 앱에서 쓸 수 있게 됩니다.</translation>
    </message>
    <message>
        <source>Copy to Fonts Folder</source>
        <extracomment>A way to activate fonts.</extracomment>
        <translation>Fonts 폴더로 복사</translation>
    </message>
    <message>
        <source>Copies the font files into your user Fonts folder. Works even if the originals move or go offline.</source>
        <translation>글꼴 파일을 사용자의 Fonts 폴더로 복사합니다. 원본이 옮겨지거나 오프라인이 되어도 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>Register in Place</source>
        <extracomment>A way to activate fonts: their files stay where they are.</extracomment>
        <translation>원래 위치에서 등록</translation>
    </message>
    <message>
        <source>Activates the font from its current location, but deactivates if the source moves.</source>
        <translation>지금 위치에서 글꼴을 활성화합니다. 원본을 옮기면 비활성화됩니다.</translation>
    </message>
    <message>
        <source>Remember this choice (change later in Settings)</source>
        <translation>이 선택 기억(나중에 설정에서 변경)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>lorva::FontPreviewNSView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>“%1” 글꼴을 불러오지 못해 시스템 글꼴로 표시합니다.</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCardView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>“%1” 글꼴을 불러오지 못해 시스템 글꼴로 표시합니다.</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCategoryView</name>
    <message numerus="yes">
        <source>%1, key %2, %3 fonts</source>
        <extracomment>A style of fonts, the key that chooses it, and how many fonts have it; spoken.</extracomment>
        <translation>
            <numerusform>%1, %2 키, 글꼴 %3개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCompletionPosterView</name>
    <message>
        <source>Save as Picture…</source>
        <translation>그림으로 저장…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Save as Picture</source>
        <translation>그림으로 저장</translation>
    </message>
    <message>
        <source>Organized Fonts</source>
        <translation>정리한 글꼴</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizIntroView</name>
    <message>
        <source>Every font is already categorized.</source>
        <translation>모든 글꼴이 이미 분류되어 있습니다.</translation>
    </message>
    <message>
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. Don&apos;t worry, you can change the style for a font later.</source>
        <translation>글꼴마다 스타일을 골라 주세요. 고르면 그 스타일 폴더에 나타납니다. 스타일은 나중에 바꿀 수 있으니 걱정하지 마세요.</translation>
    </message>
    <message numerus="yes">
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</source>
        <extracomment>The number of forms goes by %2.</extracomment>
        <translation>
            <numerusform>글꼴마다 스타일을 골라 주세요. 고르면 그 스타일 폴더에 나타납니다. %1개는 미리 분류해 두었고, %2개는 직접 보고 골라야 합니다. 스타일은 나중에 바꿀 수 있으니 걱정하지 마세요.</numerusform>
        </translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Begins the quiz.</extracomment>
        <translation>시작</translation>
    </message>
    <message>
        <source>Let&apos;s organize your fonts</source>
        <translation>글꼴을 정리해 봅시다</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizStageView</name>
    <message>
        <source>Card %1 of %2. Press 1 to 6 to choose its style, Space to skip it, Backspace to take the last choice back.</source>
        <translation>카드 %2장 중 %1번째. 1~6 키로 스타일을 선택하고, 스페이스 키로 건너뛰고, 백스페이스 키로 마지막 선택을 되돌립니다.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The card that is shown, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Space skips a card. Backspace takes the last one back.</source>
        <translation>스페이스 키로 카드를 건너뛰고, 백스페이스 키로 마지막 카드를 되돌립니다.</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizViewController</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Font Quiz</source>
        <translation>글꼴 퀴즈</translation>
    </message>
    <message>
        <source>“%1” could not be put into %2: %3</source>
        <translation>“%1” 글꼴을 “%2” 스타일에 넣지 못했습니다: %3</translation>
    </message>
    <message>
        <source>The last choice could not be taken back: %1</source>
        <translation>마지막 선택을 되돌리지 못했습니다: %1</translation>
    </message>
</context>
<context>
    <name>lorva::FontsSettingsTab</name>
    <message>
        <source>Watch Folder</source>
        <translation>폴더 감시</translation>
    </message>
    <message>
        <source>Remove Folder</source>
        <translation>폴더 제거</translation>
    </message>
    <message>
        <source>When activating fonts:</source>
        <translation>글꼴을 활성화할 때:</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>매번 묻기</translation>
    </message>
    <message>
        <source>Always copy to Fonts folder</source>
        <translation>항상 Fonts 폴더로 복사</translation>
    </message>
    <message>
        <source>Always register in place</source>
        <translation>항상 원래 위치에서 등록</translation>
    </message>
    <message>
        <source>Watched Folders</source>
        <translation>감시 폴더</translation>
    </message>
    <message>
        <source>Lorva scans these folders for font files and includes them in your library without installing them on your Mac.</source>
        <translation>Lorva는 이 폴더들에서 글꼴 파일을 스캔하여, 컴퓨터에 설치하지 않고 라이브러리에 넣습니다.</translation>
    </message>
    <message>
        <source>Activating Fonts</source>
        <translation>글꼴 활성화</translation>
    </message>
    <message>
        <source>Copying duplicates font files into your user Fonts folder. Registering activates fonts from their current location, but they deactivate if the source moves.</source>
        <translation>복사하면 글꼴 파일의 사본이 사용자의 Fonts 폴더에 생깁니다. 등록하면 지금 위치에서 글꼴이 활성화되지만, 원본을 옮기면 비활성화됩니다.</translation>
    </message>
</context>
<context>
    <name>lorva::HueBar</name>
    <message>
        <source>Hue</source>
        <translation>색조</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1도</translation>
    </message>
</context>
<context>
    <name>lorva::ImageIntake</name>
    <message>
        <source>“%1” is not there any more</source>
        <translation>“%1” 파일이 더는 없습니다</translation>
    </message>
    <message>
        <source>“%1” may not be read</source>
        <translation>“%1” 파일을 읽을 권한이 없습니다</translation>
    </message>
    <message>
        <source>“%1” is no file</source>
        <translation>“%1”은(는) 파일이 아닙니다</translation>
    </message>
    <message>
        <source>“%1” is too large</source>
        <translation>“%1” 파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>“%1” 파일을 읽지 못했습니다</translation>
    </message>
    <message>
        <source>Choose an Image</source>
        <translation>이미지 선택</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>What was dropped is no picture</source>
        <translation>놓은 것이 그림이 아닙니다</translation>
    </message>
</context>
<context>
    <name>lorva::ImageThumbnail</name>
    <message>
        <source>Delete removes it.</source>
        <translation>Delete 키를 누르면 제거됩니다.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>lorva::IndexingStatus</name>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>A headline, and the sentence below it; spoken.</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>lorva::InfoRowView</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>브라우저에서 열기</translation>
    </message>
</context>
<context>
    <name>lorva::InfoValueText</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>lorva::InlineEditHandler</name>
    <message>
        <source>Sample text</source>
        <translation>견본 글</translation>
    </message>
</context>
<context>
    <name>lorva::InspectorFeaturesView</name>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Reset Features and Axes</source>
        <translation>기능과 축 재설정</translation>
    </message>
    <message>
        <source>Axes</source>
        <extracomment>The variation axes of a font, such as Weight.</extracomment>
        <translation>축</translation>
    </message>
    <message>
        <source>No OpenType Features</source>
        <translation>OpenType 기능 없음</translation>
    </message>
    <message>
        <source>This font doesn&apos;t expose any OpenType features.</source>
        <translation>이 글꼴에는 OpenType 기능이 없습니다.</translation>
    </message>
</context>
<context>
    <name>lorva::InstanceButton</name>
    <message>
        <source>Custom</source>
        <extracomment>Settings of a variable font that are none of its named instances.</extracomment>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>Instance: %1</source>
        <translation>인스턴스: %1</translation>
    </message>
    <message>
        <source>Instance</source>
        <extracomment>A named setting of a variable font, such as Condensed Bold.</extracomment>
        <translation>인스턴스</translation>
    </message>
</context>
<context>
    <name>lorva::LineField</name>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaAppModel</name>
    <message>
        <source>New Collection</source>
        <translation>새 모음 만들기</translation>
    </message>
    <message>
        <source>Rename Collection</source>
        <translation>모음 이름 바꾸기</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>모음 삭제</translation>
    </message>
    <message>
        <source>Add to Collection</source>
        <translation>모음에 추가</translation>
    </message>
    <message>
        <source>Remove from Collection</source>
        <translation>모음에서 제거</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>스타일 변경</translation>
    </message>
    <message>
        <source>New Style</source>
        <translation>새 스타일 만들기</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>스타일 이름 바꾸기</translation>
    </message>
    <message>
        <source>Delete Style</source>
        <translation>스타일 삭제</translation>
    </message>
    <message>
        <source>Change Foundry</source>
        <translation>파운드리 변경</translation>
    </message>
    <message>
        <source>Rename Foundry</source>
        <translation>파운드리 이름 바꾸기</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>파운드리 숨기기</translation>
    </message>
    <message>
        <source>Show Foundry</source>
        <translation>파운드리 보이기</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaApplicationDelegate</name>
    <message>
        <source>All Fonts</source>
        <translation>모든 글꼴</translation>
    </message>
    <message>
        <source>Lorva is a better way to browse, test, and manage your fonts. Organize them into collections, test logo images next to text, and turn fonts on or off as needed.</source>
        <translation>Lorva는 글꼴을 둘러보고, 시험하고, 관리하는 더 나은 방법입니다. 글꼴을 모음으로 정리하고, 로고 이미지를 글자 옆에 놓아 보고, 필요할 때 글꼴을 켜고 끄세요.</translation>
    </message>
    <message>
        <source>Made for people who can never have enough fonts.</source>
        <translation>글꼴은 아무리 많아도 부족한 사람을 위해 만들었습니다.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaRootSplitViewController</name>
    <message>
        <source>Organize Fonts</source>
        <translation>글꼴 정리</translation>
    </message>
    <message>
        <source>Export Specimen</source>
        <translation>견본 내보내기</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaSettingsViewModel</name>
    <message>
        <source>This folder is not watched any more.</source>
        <translation>이 폴더는 더는 감시하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>lorva::MainMenu</name>
    <message>
        <source>&amp;Lorva</source>
        <translation>&amp;Lorva</translation>
    </message>
    <message>
        <source>About Lorva</source>
        <translation>Lorva 정보</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Organize Fonts…</source>
        <translation>글꼴 정리…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>새 모음</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>폴더 추가…</translation>
    </message>
    <message>
        <source>Scan Folders Again</source>
        <translation>폴더 다시 스캔</translation>
    </message>
    <message>
        <source>Export Specimen…</source>
        <translation>견본 내보내기…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>%1 is what was done last, such as &quot;New Collection&quot;.</extracomment>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>CSS로 복사</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Files That Failed…</source>
        <translation>실패한 파일…</translation>
    </message>
    <message>
        <source>Activation History…</source>
        <translation>활성화 기록…</translation>
    </message>
    <message>
        <source>F&amp;onts</source>
        <extracomment>The titles of the menus, each with the letter that opens it.</extracomment>
        <translation>글꼴(&amp;O)</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>활성화…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>나머지 스타일 활성화…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>비활성화</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>전체 화면으로 보기</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>격자</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>목록</translation>
    </message>
    <message>
        <source>Larger Specimens</source>
        <translation>견본 크게</translation>
    </message>
    <message>
        <source>Smaller Specimens</source>
        <translation>견본 작게</translation>
    </message>
    <message>
        <source>Standard Specimen Size</source>
        <translation>견본 표준 크기</translation>
    </message>
    <message>
        <source>Back to All Cards</source>
        <translation>모든 카드로 돌아가기</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>다음 패밀리</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>이전 패밀리</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>텍스트 보기</translation>
    </message>
    <message>
        <source>Show Waterfall</source>
        <translation>워터폴 보기</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>인스펙터</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>다시 실행: %1</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>전체 화면 나가기</translation>
    </message>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>글꼴 %n개 활성화…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>글꼴 %n개 비활성화</numerusform>
        </translation>
    </message>
    <message>
        <source>Lorva</source>
        <translation>Lorva</translation>
    </message>
    <message>
        <source>Version %1

Browse, test and organise all the fonts of this computer.</source>
        <translation>버전 %1

이 컴퓨터의 모든 글꼴을 둘러보고, 시험하고, 정리하세요.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>lorva::OnboardingOverlay</name>
    <message>
        <source>Welcome to Lorva</source>
        <translation>Lorva에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Letters of your fonts fall. Press any key to go on.</source>
        <translation>내 글꼴의 글자들이 떨어집니다. 계속하려면 아무 키나 누르세요.</translation>
    </message>
</context>
<context>
    <name>lorva::PanelLabel</name>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>lorva::PopupButton</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A setting, and what is chosen for it; spoken.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>lorva::ProjectSidebarViewController</name>
    <message>
        <source>Rename Collection…</source>
        <translation>모음 이름 바꾸기…</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>모음 삭제</translation>
    </message>
    <message>
        <source>Hide from Sidebar</source>
        <translation>사이드바에서 숨기기</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>새 모음</translation>
    </message>
    <message>
        <source>Activate Fonts…</source>
        <translation>글꼴 활성화…</translation>
    </message>
    <message>
        <source>De-activate Fonts</source>
        <translation>글꼴 비활성화</translation>
    </message>
    <message>
        <source>Rename Foundry…</source>
        <translation>파운드리 이름 바꾸기…</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>파운드리 숨기기</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>이 파운드리를 사이드바에서 숨깁니다.</translation>
    </message>
    <message>
        <source>Hidden Foundries</source>
        <translation>숨긴 파운드리</translation>
    </message>
    <message>
        <source>Create an empty collection.</source>
        <translation>빈 모음을 만듭니다.</translation>
    </message>
</context>
<context>
    <name>lorva::ReportSheet</name>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>lorva::SaturationField</name>
    <message>
        <source>Saturation and Brightness</source>
        <translation>채도와 밝기</translation>
    </message>
    <message>
        <source>Saturation %1 %, brightness %2 %</source>
        <translation>채도 %1 %, 밝기 %2 %</translation>
    </message>
</context>
<context>
    <name>lorva::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarFooter</name>
    <message>
        <source>Add Folder…</source>
        <translation>폴더 추가…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %Ln fonts</source>
        <extracomment>A row of the sidebar, and how many fonts it leads to; spoken.</extracomment>
        <translation>
            <numerusform>%1, 글꼴 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::SidebarOutlineView</name>
    <message>
        <source>Sidebar</source>
        <translation>사이드바</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarRowCellView</name>
    <message>
        <source>Name</source>
        <extracomment>Of a collection or foundry that is being renamed.</extracomment>
        <translation>이름</translation>
    </message>
</context>
<context>
    <name>lorva::SpecimenSlider</name>
    <message>
        <source>Size</source>
        <extracomment>Of the letters.</extracomment>
        <translation>크기</translation>
    </message>
    <message>
        <source>Weight</source>
        <extracomment>How heavy letters are, from Thin to Black.</extracomment>
        <translation>굵기</translation>
    </message>
    <message>
        <source>Letter Spacing</source>
        <translation>자간</translation>
    </message>
    <message>
        <source>Specimen size</source>
        <translation>견본 크기</translation>
    </message>
    <message>
        <source>Specimen weight</source>
        <translation>견본 굵기</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>미리 보기 크기</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>자간</translation>
    </message>
    <message>
        <source>%1 points</source>
        <extracomment>The size of letters; spoken.</extracomment>
        <translation>%1포인트</translation>
    </message>
    <message>
        <source>%1 em</source>
        <translation>%1 em</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowPill</name>
    <message>
        <source>Activate…</source>
        <extracomment>A small button that switches one style of a family on.</extracomment>
        <translation>활성화…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <extracomment>A small button that switches one style of a family off; &quot;Active&quot; says that it is on.</extracomment>
        <translation>비활성화</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>활성</translation>
    </message>
    <message>
        <source>De-activate %1</source>
        <translation>%1 비활성화</translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation>%1 활성화</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowView</name>
    <message>
        <source>Regular</source>
        <extracomment>A style without a name of its own, as fonts call it.</extracomment>
        <translation>Regular</translation>
    </message>
    <message>
        <source>“%1” could not be loaded.</source>
        <translation>“%1” 글꼴을 불러오지 못했습니다.</translation>
    </message>
    <message>
        <source>In one file with %1: they are activated and de-activated together.</source>
        <translation>%1 스타일과 한 파일에 있어 함께 활성화되고 비활성화됩니다.</translation>
    </message>
    <message>
        <source>Shown in the preview.</source>
        <translation>미리 보기에 표시하고 있습니다.</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are the styles that are in the same file as this one.</extracomment>
        <translation>같은 파일: %1</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>A style that the system has switched on, which the user cannot change.</extracomment>
        <translation>시스템</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowsView</name>
    <message>
        <source>Styles</source>
        <translation>스타일</translation>
    </message>
</context>
<context>
    <name>lorva::UpdateCommands</name>
    <message>
        <source>Looking for a newer release…</source>
        <translation>새 릴리스 찾는 중…</translation>
    </message>
</context>
<context>
    <name>lorva::VariantBar</name>
    <message>
        <source>Variant</source>
        <extracomment>One of the widths or optical sizes of a family.</extracomment>
        <translation>변형</translation>
    </message>
    <message>
        <source>More Variants</source>
        <translation>변형 더 보기</translation>
    </message>
    <message numerus="yes">
        <source>%n More</source>
        <extracomment>So many variants of a family that have no room beside the others.</extracomment>
        <translation>
            <numerusform>%n개 더</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderDelegate</name>
    <message>
        <source>No fonts</source>
        <translation>글꼴 없음</translation>
    </message>
    <message numerus="yes">
        <source>%1 fonts</source>
        <translation>
            <numerusform>글꼴 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Not there</source>
        <extracomment>A folder that is missing.</extracomment>
        <translation>없음</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A folder, and how many fonts are in it; spoken.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderList</name>
    <message>
        <source>Watched Folders</source>
        <translation>감시 폴더</translation>
    </message>
    <message>
        <source>No folders yet. Drop folders of fonts here, or press +.</source>
        <translation>아직 폴더가 없습니다. 글꼴 폴더를 여기에 놓거나 +를 누르세요.</translation>
    </message>
</context>
<context>
    <name>lorva::WaterfallView</name>
    <message>
        <source>Waterfall</source>
        <translation>워터폴</translation>
    </message>
</context>
<context>
    <name>lorvactl</name>
    <message>
        <source>Makes fonts of watched folders, and font files, available to every program. One line for each file: &quot;copied&quot;, &quot;registered&quot; or, when a file of its name is there already, &quot;skipped&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too. Nothing is replaced.</source>
        <translation>감시 폴더의 글꼴과 글꼴 파일을 모든 프로그램에서 쓸 수 있게 합니다. 파일마다 한 줄씩 출력합니다: &quot;copied&quot;, &quot;registered&quot; 또는 같은 이름의 파일이 이미 있으면 &quot;skipped&quot;, 탭, 파일. &quot;also&quot;, 탭, 패밀리는 그 패밀리의 페이스도 이 파일들에 있다는 뜻입니다. 덮어쓰는 것은 없습니다.</translation>
    </message>
    <message>
        <source>A word with a slash is a file, every other one a family; a lone - reads families from standard input, one per line.</source>
        <translation>빗금(/)이 든 인수는 파일이고 나머지는 모두 패밀리입니다. -만 쓰면 표준 입력에서 패밀리를 한 줄에 하나씩 읽습니다.</translation>
    </message>
    <message>
        <source>copy the files into your Fonts folder: works even if the originals move or go offline</source>
        <translation>파일을 Fonts 폴더로 복사: 원본이 옮겨지거나 오프라인이 되어도 쓸 수 있음</translation>
    </message>
    <message>
        <source>activate them where they are, for as long as they stay there</source>
        <translation>있는 자리에서 활성화: 그 자리에 있는 동안만 쓸 수 있음</translation>
    </message>
    <message>
        <source>(without --method, the one chosen as the default)</source>
        <translation>(--method가 없으면 기본으로 정한 방법)</translation>
    </message>
    <message>
        <source>the families of this collection; may be given more than once</source>
        <translation>이 모음의 패밀리, 여러 번 쓸 수 있음</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too; may be given more than once</source>
        <translation>DIR 아래의 글꼴도 포함, 여러 번 쓸 수 있음</translation>
    </message>
    <message>
        <source>only tell what would be done</source>
        <translation>할 일만 알려 주고 실행하지 않음</translation>
    </message>
    <message>
        <source>one JSON object instead of lines</source>
        <translation>줄 대신 JSON 객체 하나</translation>
    </message>
    <message>
        <source>--method takes copy or register</source>
        <translation>--method에는 copy나 register를 씁니다</translation>
    </message>
    <message>
        <source>activate needs --method copy or --method register, as no default is chosen</source>
        <translation>기본 방법이 정해지지 않아 activate에는 --method copy나 --method register가 필요합니다</translation>
    </message>
    <message>
        <source>registered, but its link is missing, so that no program sees it; the next activation makes it again</source>
        <translation>등록되었지만 링크가 없어 어느 프로그램에도 보이지 않습니다. 다음에 활성화할 때 링크를 다시 만듭니다</translation>
    </message>
    <message>
        <source>registered, but gone; its registration will be withdrawn</source>
        <translation>등록되었지만 파일이 없습니다. 등록을 해제할 것입니다</translation>
    </message>
    <message>
        <source>active by a link that the books do not know; they will take it in</source>
        <translation>기록에 없는 링크로 활성화되어 있습니다. 기록에 넣을 것입니다</translation>
    </message>
    <message>
        <source>gone, and the books do not know its link, which will be removed</source>
        <translation>파일이 없고 링크도 기록에 없습니다. 링크를 제거할 것입니다</translation>
    </message>
    <message>
        <source>a copy that has gone from the Fonts folder; the books will forget it</source>
        <translation>Fonts 폴더에서 사라진 사본입니다. 기록에서 지울 것입니다</translation>
    </message>
    <message>
        <source>another program is switching fonts on or off now</source>
        <translation>다른 프로그램이 지금 글꼴을 켜거나 끄고 있습니다</translation>
    </message>
    <message>
        <source>a program ended while it switched fonts on or off; the next activation finishes its books</source>
        <translation>글꼴을 켜거나 끄는 동안 프로그램이 끝났습니다. 다음에 활성화할 때 기록을 마무리합니다</translation>
    </message>
    <message>
        <source>not there now; its place in the list is kept</source>
        <translation>지금은 없습니다. 목록의 자리는 그대로 둡니다</translation>
    </message>
    <message>
        <source>on a volume where others&apos; changes are not noticed; the window looks when it becomes active</source>
        <translation>다른 곳에서 바꾼 내용을 알아챌 수 없는 볼륨에 있습니다. 창이 활성화될 때 살펴봅니다</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>감시 중</translation>
    </message>
    <message>
        <source>lies in %1, which is watched too; each font counts once</source>
        <translation>%1 안에 있는데, 그 폴더도 감시하고 있습니다. 글꼴은 한 번씩만 셉니다</translation>
    </message>
    <message>
        <source>books and disk agree: %1 copied, %2 registered</source>
        <translation>기록과 디스크가 일치합니다: 복사 %1개, 등록 %2개</translation>
    </message>
    <message numerus="yes">
        <source>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</source>
        <translation>
            <numerusform>Fonts 폴더 밖의 글꼴 파일 %n개가 원래 위치에서 등록되어 있습니다. Flatpak이나 Snap처럼 샌드박스에서 실행되는 프로그램은 복사하지 않은 글꼴을 볼 수 없습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>--collection takes no empty name</source>
        <translation>--collection에는 빈 이름을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>%1; the file of that name is ./%2</source>
        <translation>%1. 그 이름의 파일은 ./%2입니다</translation>
    </message>
    <message>
        <source>this machine has no family %1</source>
        <translation>이 컴퓨터에 패밀리 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>파일을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>this is a folder; name the font files in it</source>
        <translation>폴더입니다. 그 안의 글꼴 파일을 지정하세요</translation>
    </message>
    <message>
        <source>it holds no font that can be read</source>
        <translation>읽을 수 있는 글꼴이 들어 있지 않습니다</translation>
    </message>
    <message>
        <source>standard input names no family</source>
        <translation>표준 입력에 패밀리가 없습니다</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>알 수 없는 옵션 %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1에는 값을 쓰지 않습니다</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1에는 값이 필요합니다</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3</source>
        <translation>%1에는 %2부터 %3까지의 정수를 씁니다</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3</source>
        <translation>%1에는 %2부터 %3까지의 수를 씁니다</translation>
    </message>
    <message>
        <source>%1 takes UTF-8 text</source>
        <translation>%1에는 UTF-8 텍스트를 씁니다</translation>
    </message>
    <message>
        <source>Lists the collections, one line each: the name, a tab, the number of families; or the families of one, in their order. Changes are seen at once by a window that is open.</source>
        <translation>모음을 한 줄에 하나씩(이름, 탭, 패밀리 수) 나열하거나, 한 모음의 패밀리를 순서대로 나열합니다. 바꾼 내용은 열려 있는 창에 바로 나타납니다.</translation>
    </message>
    <message>
        <source>puts families into a collection, at its end</source>
        <translation>패밀리를 모음 끝에 추가</translation>
    </message>
    <message>
        <source>takes families out of it</source>
        <translation>패밀리를 모음에서 제거</translation>
    </message>
    <message>
        <source>makes these families its members, in this order, and no others</source>
        <translation>모음을 이 패밀리만으로, 이 순서로 구성</translation>
    </message>
    <message>
        <source>COLLECTION is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a collection; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>COLLECTION은 --json이 보여 주는 ID이거나 이름입니다. 이름의 대소문자는 여러 모음에 맞지 않는 한 구분하지 않습니다. FAMILY는 이 컴퓨터나 모음에 있는 패밀리의 이름입니다. -만 쓰면 표준 입력에서 이름을 한 줄에 하나씩 읽습니다. 명령은 전부 실행되거나 전혀 실행되지 않습니다.</translation>
    </message>
    <message>
        <source>JSON instead of lines</source>
        <translation>줄 대신 JSON</translation>
    </message>
    <message>
        <source>cannot write the output: %1</source>
        <translation>출력을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1; see %2</source>
        <translation>%1. %2를 보세요</translation>
    </message>
    <message>
        <source>Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder go to the Trash; your original files are not touched. Where Lorva does not know the original, the file stays unless --to says where it is to go. One line for each file: &quot;withdrawn&quot;, &quot;trashed&quot; or &quot;moved&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too.</source>
        <translation>글꼴을 모든 프로그램에서 거두어들입니다. 등록은 해제되고 Fonts 폴더의 사본은 휴지통으로 갑니다. 원본 파일은 건드리지 않습니다. Lorva가 원본을 모르는 파일은 --to로 옮길 곳을 정하지 않으면 그대로 둡니다. 파일마다 한 줄씩 출력합니다: &quot;withdrawn&quot;, &quot;trashed&quot; 또는 &quot;moved&quot;, 탭, 파일. &quot;also&quot;, 탭, 패밀리는 그 패밀리의 페이스도 이 파일들에 있다는 뜻입니다.</translation>
    </message>
    <message>
        <source>move the copies there instead, under a free name; made if it is missing</source>
        <translation>사본을 휴지통 대신 이 폴더로 겹치지 않는 이름으로 이동, 폴더가 없으면 만듦</translation>
    </message>
    <message>
        <source>--to needs the name of a folder</source>
        <translation>--to에는 폴더 이름이 필요합니다</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install it, so the original is not known; --to DIR moves it</source>
        <translation>Lorva로 설치하지 않아 원본을 알 수 없습니다. --to DIR로 옮길 수 있습니다</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1바이트</numerusform>
        </translation>
    </message>
    <message>
        <source>not there yet; the first change makes it</source>
        <translation>아직 없습니다. 처음 변경할 때 만듭니다</translation>
    </message>
    <message>
        <source>%1, preferences: %2</source>
        <translation>%1, 환경설정: %2</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>changes can be written</source>
        <translation>변경 내용을 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>changes cannot be written: %1</source>
        <translation>변경 내용을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>damaged preferences that were moved aside</source>
        <translation>손상되어 옮겨 둔 환경설정</translation>
    </message>
    <message>
        <source>%1, kept because it could not be read when it was replaced</source>
        <translation>%1, 대체될 때 읽을 수 없어 남겨 두었습니다</translation>
    </message>
    <message>
        <source>%1, unknown to this version, which leaves it alone</source>
        <translation>%1, 이 버전이 모르는 항목이어서 건드리지 않습니다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a file, and what is wrong with it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, cannot be read: %2; it counts as absent, and is kept when it is replaced</source>
        <translation>%1, 읽을 수 없습니다: %2. 없는 것으로 보며, 대체할 때 남겨 둡니다</translation>
    </message>
    <message>
        <source>not there yet</source>
        <translation>아직 없습니다</translation>
    </message>
    <message>
        <source>of no use, and replaced by the next scan: %1</source>
        <translation>쓸 수 없어 다음에 스캔할 때 대체합니다: %1</translation>
    </message>
    <message>
        <source>of no use, and replaced when the window has next read the fonts: %1</source>
        <translation>쓸 수 없어 다음에 창이 글꼴을 읽고 나면 대체합니다: %1</translation>
    </message>
    <message>
        <source>all families that it names are in the last catalog: %1</source>
        <translation>언급하는 패밀리가 모두 마지막 카탈로그에 있습니다: %1개</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 families that it names are not in the last catalog</source>
        <translation>
            <numerusform>언급하는 패밀리 %1개 중 %n개가 마지막 카탈로그에 없습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how preferences, caches, active fonts and watched folders fare, and changes nothing. One line for each finding: &quot;ok&quot;, &quot;note&quot; or &quot;wrong&quot;, a tab, the file or preference, a tab, what there is to say. A note is worth knowing, but nothing is out of order: preferences of another version, damaged ones that were kept beside new ones, a cache of no use that will be written anew, books that the next activation brings into line with the disk.</source>
        <translation>환경설정, 캐시, 활성 글꼴, 감시 폴더가 어떤 상태인지 알려 주고 아무것도 바꾸지 않습니다. 발견한 것마다 한 줄씩 출력합니다: &quot;ok&quot;, &quot;note&quot; 또는 &quot;wrong&quot;, 탭, 파일이나 환경설정, 탭, 내용. note는 알아 둘 만하지만 잘못된 것은 아닙니다: 다른 버전의 환경설정, 새것 옆에 남겨 둔 손상된 환경설정, 쓸 수 없어 새로 쓸 캐시, 다음에 활성화할 때 디스크에 맞출 기록 등입니다.</translation>
    </message>
    <message>
        <source>one JSON object instead</source>
        <translation>JSON 객체 하나로 출력</translation>
    </message>
    <message>
        <source>Exit status: 0 all is well, 1 something is wrong.</source>
        <translation>종료 상태: 0 모두 정상, 1 잘못된 것이 있음.</translation>
    </message>
    <message>
        <source>doctor takes no words</source>
        <translation>doctor에는 인수를 쓰지 않습니다</translation>
    </message>
    <message>
        <source>collection %1 deleted</source>
        <translation>모음 %1 삭제</translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>모음 %1 만듦, 패밀리 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>collection %1: %2</source>
        <translation>모음 %1: %2</translation>
    </message>
    <message>
        <source>style %1 deleted</source>
        <translation>스타일 %1 삭제</translation>
    </message>
    <message numerus="yes">
        <source>style %1 created with %n families</source>
        <translation>
            <numerusform>스타일 %1 만듦, 패밀리 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>style %1: %2</source>
        <translation>스타일 %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n families joined</source>
        <translation>
            <numerusform>패밀리 %n개 추가</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families left</source>
        <translation>
            <numerusform>패밀리 %n개 제거</numerusform>
        </translation>
    </message>
    <message>
        <source>renamed from %1</source>
        <translation>이전 이름 %1</translation>
    </message>
    <message>
        <source>family %1: of the foundry that its fonts name</source>
        <translation>패밀리 %1: 글꼴에 적힌 파운드리에 속함</translation>
    </message>
    <message>
        <source>family %1: of no foundry</source>
        <translation>패밀리 %1: 속한 파운드리 없음</translation>
    </message>
    <message>
        <source>family %1: of the foundry %2</source>
        <translation>패밀리 %1: 파운드리 %2에 속함</translation>
    </message>
    <message>
        <source>foundry %1: called %2</source>
        <translation>파운드리 %1: 표시 이름 %2</translation>
    </message>
    <message>
        <source>foundry %1: called by its own name</source>
        <translation>파운드리 %1: 원래 이름으로 표시</translation>
    </message>
    <message>
        <source>foundry %1: hidden</source>
        <translation>파운드리 %1: 숨김</translation>
    </message>
    <message>
        <source>foundry %1: shown again</source>
        <translation>파운드리 %1: 다시 표시</translation>
    </message>
    <message>
        <source>display settings of all fonts: taken in</source>
        <translation>모든 글꼴의 보기 설정: 반영함</translation>
    </message>
    <message>
        <source>display settings of collection %1: taken in</source>
        <translation>모음 %1의 보기 설정: 반영함</translation>
    </message>
    <message>
        <source>Writes collections, styles, what you said about foundries, and display settings as one JSON document, for another machine or for version control. Equal organisations give equal bytes.</source>
        <translation>모음, 스타일, 파운드리에 관해 정한 것, 보기 설정을 JSON 문서 하나로 씁니다. 다른 컴퓨터로 옮기거나 버전 관리에 쓸 수 있습니다. 정리 내용이 같으면 바이트까지 같습니다.</translation>
    </message>
    <message>
        <source>the file to write, whole or not at all; standard output if not given</source>
        <translation>쓸 파일, 전부 쓰거나 전혀 쓰지 않음. 없으면 표준 출력</translation>
    </message>
    <message>
        <source>export takes a file as -o FILE</source>
        <translation>export의 파일은 -o FILE로 정합니다</translation>
    </message>
    <message>
        <source>TrueType</source>
        <translation>TrueType</translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation>PostScript</translation>
    </message>
    <message>
        <source>OpenType (CFF)</source>
        <translation>OpenType(CFF)</translation>
    </message>
    <message>
        <source>OpenType (TrueType)</source>
        <translation>OpenType(TrueType)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>%1: holds no face that can be read</source>
        <translation>%1: 읽을 수 있는 페이스가 없습니다</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>패밀리</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>스타일</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 이름</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>전체 이름</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>제작사</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>디자이너</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>저작권</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>a title before a value, in a list of them</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>no</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>굵기</translation>
    </message>
    <message>
        <source>%1 (trait %2)</source>
        <translation>%1(특성 %2)</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>이탤릭</translation>
    </message>
    <message>
        <source>%1 (slant %2)</source>
        <translation>%1(기울기 %2)</translation>
    </message>
    <message>
        <source>default %1</source>
        <extracomment>the value of an axis of a variable font</extracomment>
        <translation>기본값 %1</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>숨김</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>축</translation>
    </message>
    <message>
        <source>linked with %1</source>
        <translation>%1과(와) 연결</translation>
    </message>
    <message>
        <source>left out of names</source>
        <translation>이름에서 생략</translation>
    </message>
    <message>
        <source>Axis value</source>
        <translation>축 값</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>인스턴스</translation>
    </message>
    <message>
        <source>Name %1</source>
        <translation>이름 %1</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>ascender %1, descender %2, line gap %3</source>
        <translation>어센더 %1, 디센더 %2, 줄 간격 %3</translation>
    </message>
    <message>
        <source>position %1, thickness %2</source>
        <translation>위치 %1, 두께 %2</translation>
    </message>
    <message>
        <source>size %1 × %2, offset %3, %4</source>
        <translation>크기 %1 × %2, 오프셋 %3, %4</translation>
    </message>
    <message>
        <source>Units per em</source>
        <translation>em당 단위 수</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>capitals %1, x %2</source>
        <translation>대문자 %1, x %2</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>줄</translation>
    </message>
    <message>
        <source>OS/2 typo, used</source>
        <translation>OS/2 typo, 사용</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>밑줄</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <translation>취소선</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>아래 첨자</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>위 첨자</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>경계</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>리비전</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>공급사</translation>
    </message>
    <message>
        <source>Embedding</source>
        <translation>임베딩</translation>
    </message>
    <message>
        <source>Weight class</source>
        <translation>굵기 등급</translation>
    </message>
    <message>
        <source>Width class</source>
        <translation>폭 등급</translation>
    </message>
    <message>
        <source>Average width</source>
        <translation>평균 폭</translation>
    </message>
    <message>
        <source>Widest advance</source>
        <translation>최대 글자폭</translation>
    </message>
    <message>
        <source>Italic angle</source>
        <translation>이탤릭 각도</translation>
    </message>
    <message>
        <source>Monospaced</source>
        <translation>고정폭</translation>
    </message>
    <message>
        <source>Smallest pixels</source>
        <translation>최소 픽셀</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more ranges</source>
        <translation>
            <numerusform>그 밖의 범위 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>문자</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>a feature of a font that is switched on unless somebody switches it off</extracomment>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>at the end of a list of colours</extracomment>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>for light backgrounds</source>
        <translation>밝은 배경용</translation>
    </message>
    <message>
        <source>for dark backgrounds</source>
        <translation>어두운 배경용</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Colour tables</source>
        <translation>색상 테이블</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>레이아웃</translation>
    </message>
    <message>
        <source>Tables, bytes</source>
        <translation>테이블(바이트)</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>글리프</translation>
    </message>
    <message>
        <source>Face %1</source>
        <extracomment>one of the fonts in a file; %1: its number</extracomment>
        <translation>페이스 %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>글리프</translation>
    </message>
    <message>
        <source>Family %1</source>
        <translation>패밀리 %1</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>문자 체계</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Primary script</source>
        <translation>주 문자 체계</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>다른 이름</translation>
    </message>
    <message>
        <source>several families are called %1: %2</source>
        <translation>이름이 %1인 패밀리가 여러 개입니다: %2</translation>
    </message>
    <message>
        <source>there is no family %1</source>
        <translation>패밀리 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>Lists the watched folders, whose fonts belong to your library: the folder, a tab, the number of font files in it, or &quot;not there&quot;. Changes are seen at once by a window that is open; no file is touched. A command is done whole or not at all.</source>
        <translation>라이브러리에 글꼴을 넣는 감시 폴더를 나열합니다: 폴더, 탭, 글꼴 파일 수 또는 &quot;not there&quot;. 바꾼 내용은 열려 있는 창에 바로 나타납니다. 파일은 건드리지 않습니다. 명령은 전부 실행되거나 전혀 실행되지 않습니다.</translation>
    </message>
    <message>
        <source>watches folders; one that is watched already stays as it is</source>
        <translation>폴더 감시, 이미 감시하는 폴더는 그대로 둠</translation>
    </message>
    <message>
        <source>ends that; what was activated from there stays active</source>
        <translation>폴더 감시 중단, 거기서 활성화한 글꼴은 활성으로 남음</translation>
    </message>
    <message>
        <source>ID is what --json shows.</source>
        <translation>ID는 --json이 보여 주는 것입니다.</translation>
    </message>
    <message>
        <source>one JSON array of folders instead of lines; add and remove show what they added or removed</source>
        <translation>줄 대신 폴더의 JSON 배열 하나, add와 remove는 추가하거나 제거한 폴더를 보여 줌</translation>
    </message>
    <message>
        <source>list takes fewer words</source>
        <translation>list에 쓴 인수가 너무 많습니다</translation>
    </message>
    <message>
        <source>add takes no empty name</source>
        <translation>add에는 빈 이름을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the path %1 is no UTF-8 text</source>
        <translation>경로 %1은(는) UTF-8 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>remove takes no empty name</source>
        <translation>remove에는 빈 이름을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>there is no watched folder %1</source>
        <translation>감시 폴더 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>unknown verb %1</source>
        <translation>알 수 없는 동작 %1</translation>
    </message>
    <message>
        <source>%1 needs a folder</source>
        <translation>%1에는 폴더가 필요합니다</translation>
    </message>
    <message>
        <source>Lists the foundries of this machine&apos;s fonts with two families at least, corrected by what you said, one line each: the name, a tab, the number of families; or the families of one. Changes are seen at once by a window that is open.</source>
        <translation>이 컴퓨터의 글꼴에서 패밀리가 둘 이상인 파운드리를, 바로잡은 내용을 반영하여 한 줄에 하나씩(이름, 탭, 패밀리 수) 나열하거나, 한 파운드리의 패밀리를 나열합니다. 바꾼 내용은 열려 있는 창에 바로 나타납니다.</translation>
    </message>
    <message>
        <source>shows the foundry under another name, or under its own with --original</source>
        <translation>파운드리를 다른 이름으로, --original을 주면 원래 이름으로 표시</translation>
    </message>
    <message>
        <source>hides it, its families stay in the library; list --hidden shows such ones</source>
        <translation>파운드리 숨기기, 패밀리는 라이브러리에 남음. list --hidden으로 볼 수 있음</translation>
    </message>
    <message>
        <source>brings it back</source>
        <translation>다시 표시</translation>
    </message>
    <message>
        <source>moves families to it, whatever their fonts say</source>
        <translation>글꼴에 적힌 내용과 상관없이 패밀리를 파운드리로 이동</translation>
    </message>
    <message>
        <source>takes families out of it; they are of no foundry then</source>
        <translation>패밀리를 파운드리에서 제거, 속한 파운드리가 없어짐</translation>
    </message>
    <message>
        <source>makes these families its own; others that their fonts count to it are of no foundry then</source>
        <translation>이 패밀리만 파운드리에 속하게 함. 글꼴에 이 파운드리가 적힌 다른 패밀리는 속한 파운드리가 없어짐</translation>
    </message>
    <message>
        <source>lets the fonts of families say it again</source>
        <translation>패밀리를 다시 글꼴에 적힌 대로 둠</translation>
    </message>
    <message>
        <source>FOUNDRY is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of one that you sorted; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>FOUNDRY는 --json이 보여 주는 ID이거나 이름입니다. 이름의 대소문자는 여러 파운드리에 맞지 않는 한 구분하지 않습니다. FAMILY는 이 컴퓨터에 있거나 직접 분류한 패밀리의 이름입니다. -만 쓰면 표준 입력에서 이름을 한 줄에 하나씩 읽습니다. 명령은 전부 실행되거나 전혀 실행되지 않습니다.</translation>
    </message>
    <message>
        <source>a foundry comes from the fonts and cannot be created; rename one, or add families to one</source>
        <translation>파운드리는 글꼴에서 나오므로 만들 수 없습니다. 파운드리의 이름을 바꾸거나 패밀리를 추가하세요</translation>
    </message>
    <message>
        <source>rename needs either a new name or --original</source>
        <translation>rename에는 새 이름이나 --original이 필요합니다</translation>
    </message>
    <message>
        <source>no fonts of this machine are of the foundry %1</source>
        <translation>이 컴퓨터에 파운드리 %1의 글꼴이 없습니다</translation>
    </message>
    <message>
        <source>there is no collection %1</source>
        <translation>모음 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is more than one collection %1; their ids: %2</source>
        <translation>모음 %1이(가) 여러 개입니다. ID: %2</translation>
    </message>
    <message>
        <source>there is a collection %1 already</source>
        <translation>모음 %1이(가) 이미 있습니다</translation>
    </message>
    <message>
        <source>%1 is not in collection %2</source>
        <translation>%1은(는) 모음 %2에 없습니다</translation>
    </message>
    <message>
        <source>there is no style %1</source>
        <translation>스타일 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is more than one style %1; their ids: %2</source>
        <translation>스타일 %1이(가) 여러 개입니다. ID: %2</translation>
    </message>
    <message>
        <source>there is a style %1 already</source>
        <translation>스타일 %1이(가) 이미 있습니다</translation>
    </message>
    <message>
        <source>%1 is not in style %2</source>
        <translation>%1은(는) 스타일 %2에 없습니다</translation>
    </message>
    <message>
        <source>there is no foundry %1</source>
        <translation>파운드리 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is more than one foundry %1; their ids: %2</source>
        <translation>파운드리 %1이(가) 여러 개입니다. ID: %2</translation>
    </message>
    <message>
        <source>there is a foundry %1 already</source>
        <translation>파운드리 %1이(가) 이미 있습니다</translation>
    </message>
    <message>
        <source>%1 is not in foundry %2</source>
        <translation>%1은(는) 파운드리 %2에 없습니다</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>이 도움말 표시</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too, beside those of the watched folders</source>
        <translation>감시 폴더의 글꼴과 함께 DIR 아래의 글꼴도 포함</translation>
    </message>
    <message>
        <source>take names of families that this machine lacks, for when their fonts come</source>
        <translation>이 컴퓨터에 없는 패밀리의 이름도 받음, 나중에 글꼴이 생길 때를 위해</translation>
    </message>
    <message>
        <source>Tells what was switched on and off here, in the window and by lorvactl, the newest first. One line for each time: when, a tab, &quot;copied&quot;, &quot;registered&quot;, &quot;deactivated&quot;, &quot;moved&quot; or &quot;restored&quot;, a tab, the families; after &quot;moved&quot; a tab, and where to. Then a line for each file, which begins with a tab: &quot;done&quot;, &quot;skipped&quot; (its name was taken), &quot;failed&quot; or &quot;left&quot; (it was stopped before), a tab, the file; after &quot;failed&quot; a tab, and why.</source>
        <translation>이 컴퓨터에서 창과 lorvactl로 켜고 끈 것을 최근 순으로 알려 줍니다. 한 번에 한 줄씩 출력합니다: 시각, 탭, &quot;copied&quot;, &quot;registered&quot;, &quot;deactivated&quot;, &quot;moved&quot; 또는 &quot;restored&quot;, 탭, 패밀리. &quot;moved&quot;에는 탭과 옮긴 곳이 이어집니다. 그다음 파일마다 탭으로 시작하는 한 줄을 출력합니다: &quot;done&quot;, &quot;skipped&quot;(같은 이름이 이미 있음), &quot;failed&quot; 또는 &quot;left&quot;(그 전에 중단됨), 탭, 파일. &quot;failed&quot;에는 탭과 이유가 이어집니다.</translation>
    </message>
    <message>
        <source>only the newest N times</source>
        <translation>최근 N번만</translation>
    </message>
    <message>
        <source>one JSON array instead of lines</source>
        <translation>줄 대신 JSON 배열 하나</translation>
    </message>
    <message>
        <source>a table for spreadsheets instead, one row for each file</source>
        <translation>스프레드시트용 표로 출력, 파일마다 한 행</translation>
    </message>
    <message>
        <source>history takes --json or --csv, not both</source>
        <translation>history에는 --json과 --csv 중 하나만 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>history takes no further words</source>
        <translation>history에는 다른 인수를 쓰지 않습니다</translation>
    </message>
    <message>
        <source>Takes in what lorvactl export wrote; a lone - reads standard input. Collections and styles of the same id or name take the file&apos;s families in, others come anew, and what the file says about foundries and display settings wins; nothing is taken away. Families that this machine lacks stay members, for when their fonts come. Tells what changed, one line each. Done whole or not at all.</source>
        <translation>lorvactl export가 쓴 것을 가져옵니다. -만 쓰면 표준 입력을 읽습니다. ID나 이름이 같은 모음과 스타일에는 파일의 패밀리가 더해지고, 나머지는 새로 생기며, 파운드리와 보기 설정은 파일의 내용을 따릅니다. 없어지는 것은 없습니다. 이 컴퓨터에 없는 패밀리도 글꼴이 생길 때를 위해 그대로 남습니다. 바뀐 내용을 한 줄에 하나씩 알려 줍니다. 전부 실행되거나 전혀 실행되지 않습니다.</translation>
    </message>
    <message>
        <source>make collections, styles and foundries what the file says and nothing else; what was there is first written to a file beside the preferences; the window no longer sorts families into styles by itself</source>
        <translation>모음, 스타일, 파운드리를 파일에 적힌 대로만 만듦. 있던 내용은 먼저 환경설정 옆의 파일에 쓰며, 창은 더는 스스로 패밀리를 스타일로 분류하지 않음</translation>
    </message>
    <message>
        <source>only tell what would change</source>
        <translation>바뀔 내용만 알려 줌</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>표준 입력</translation>
    </message>
    <message>
        <source>preference %1: made anew</source>
        <translation>환경설정 %1: 새로 만듦</translation>
    </message>
    <message>
        <source>%1 lacks what could not be read: %2</source>
        <translation>%1에는 읽을 수 없었던 것이 빠져 있습니다: %2</translation>
    </message>
    <message>
        <source>%1; what stands there would be kept</source>
        <translation>%1. 지금 있는 내용은 남겨 둘 것입니다</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>바꿀 내용 없음</translation>
    </message>
    <message>
        <source>what was there: %1</source>
        <translation>있던 내용: %1</translation>
    </message>
    <message>
        <source>import takes one file</source>
        <translation>import에는 파일 하나를 씁니다</translation>
    </message>
    <message>
        <source>Shows what there is to know of every face of a font file: names in every language, format, metrics, embedding rights, characters, variation axes with their named values and instances, features, layout languages, colours and tables; and which writing scripts its families serve.</source>
        <translation>글꼴 파일에 든 모든 페이스에 관해 알 수 있는 것을 보여 줍니다: 모든 언어의 이름, 형식, 메트릭, 임베딩 권한, 문자, 가변 축과 이름 있는 값 및 인스턴스, 기능, 레이아웃 언어, 색상, 테이블, 그리고 패밀리가 지원하는 문자 체계.</translation>
    </message>
    <message>
        <source>list every glyph with its name and its character, too</source>
        <translation>모든 글리프를 이름, 문자와 함께 나열</translation>
    </message>
    <message>
        <source>info takes one font file</source>
        <translation>info에는 글꼴 파일 하나를 씁니다</translation>
    </message>
    <message>
        <source>standard input is not UTF-8 text</source>
        <translation>표준 입력이 UTF-8 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>표준 입력을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>standard input has more than %1 bytes</source>
        <translation>표준 입력이 %1바이트를 넘습니다</translation>
    </message>
    <message>
        <source>the name of a family must be UTF-8 text</source>
        <translation>패밀리 이름은 UTF-8 텍스트여야 합니다</translation>
    </message>
    <message>
        <source>the name of a family cannot be empty</source>
        <translation>패밀리 이름은 비워 둘 수 없습니다</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>폴더 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>--folder needs the name of a folder</source>
        <translation>--folder에는 폴더 이름이 필요합니다</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1은(는) 폴더가 아닙니다</translation>
    </message>
    <message>
        <source>the watched folders cannot be read (%1); they are left out</source>
        <translation>감시 폴더를 읽을 수 없어 제외합니다(%1)</translation>
    </message>
    <message>
        <source>Lists the font families of this machine, one line each: the name, a tab, the styles. Characters that would break a line are written as escapes (\n, \u{202e}).</source>
        <translation>이 컴퓨터의 글꼴 패밀리를 한 줄에 하나씩 나열합니다: 이름, 탭, 스타일. 줄을 깨뜨릴 문자는 이스케이프로 씁니다(\n, \u{202e}).</translation>
    </message>
    <message>
        <source>one JSON array of families instead</source>
        <translation>패밀리의 JSON 배열 하나로 출력</translation>
    </message>
    <message>
        <source>only families that can set latin, japanese, korean, simplifiedChinese or traditionalChinese</source>
        <translation>latin, japanese, korean, simplifiedChinese, traditionalChinese 중 하나를 조판할 수 있는 패밀리만</translation>
    </message>
    <message>
        <source>--script takes %1</source>
        <translation>--script에는 다음을 씁니다: %1</translation>
    </message>
    <message>
        <source>list takes folders as --folder DIR</source>
        <translation>list의 폴더는 --folder DIR로 정합니다</translation>
    </message>
    <message>
        <source>list the font families of this machine</source>
        <translation>이 컴퓨터의 글꼴 패밀리 나열</translation>
    </message>
    <message>
        <source>list those that a search finds</source>
        <translation>검색으로 찾은 패밀리 나열</translation>
    </message>
    <message>
        <source>read the fonts that changed, and tell what that took</source>
        <translation>바뀐 글꼴을 읽고 걸린 시간 알림</translation>
    </message>
    <message>
        <source>show what a font file says about its faces</source>
        <translation>글꼴 파일의 페이스 정보 표시</translation>
    </message>
    <message>
        <source>draw text in a font: PNG, SVG or PDF</source>
        <translation>글꼴로 텍스트 그리기: PNG, SVG, PDF</translation>
    </message>
    <message>
        <source>list, make and change collections</source>
        <translation>모음 나열, 만들기, 변경</translation>
    </message>
    <message>
        <source>list, make and change styles</source>
        <translation>스타일 나열, 만들기, 변경</translation>
    </message>
    <message>
        <source>list and correct the foundries</source>
        <translation>파운드리 나열, 바로잡기</translation>
    </message>
    <message>
        <source>write all of that to a file</source>
        <translation>위의 내용을 모두 파일로 내보내기</translation>
    </message>
    <message>
        <source>take it in from such a file</source>
        <translation>내보낸 파일 가져오기</translation>
    </message>
    <message>
        <source>make fonts available to every program</source>
        <translation>글꼴을 모든 프로그램에서 쓸 수 있게 하기</translation>
    </message>
    <message>
        <source>withdraw them again</source>
        <translation>글꼴 거두어들이기</translation>
    </message>
    <message>
        <source>tell what is active, and how</source>
        <translation>활성 글꼴과 그 방식 알림</translation>
    </message>
    <message>
        <source>list, add and remove watched folders</source>
        <translation>감시 폴더 나열, 추가, 제거</translation>
    </message>
    <message>
        <source>tell what was switched on and off, and when</source>
        <translation>켜고 끈 것과 그 시각 알림</translation>
    </message>
    <message>
        <source>tell how preferences, caches and activation fare</source>
        <translation>환경설정, 캐시, 활성화의 상태 알림</translation>
    </message>
    <message>
        <source>ask whether there is a newer release of Lorva</source>
        <translation>Lorva의 새 릴리스가 있는지 확인</translation>
    </message>
    <message>
        <source>show this help; also after a command</source>
        <translation>이 도움말 표시, 명령 뒤에도 쓸 수 있음</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>버전 표시</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command was not understood.</source>
        <translation>종료 상태: 0 완료, 1 실패, 2 명령을 이해하지 못함.</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>명령이 없습니다</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>알 수 없는 명령 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>항목 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>readable</source>
        <translation>읽을 수 있음</translation>
    </message>
    <message>
        <source>neither copy nor register</source>
        <translation>copy도 register도 아닙니다</translation>
    </message>
    <message>
        <source>not a whole value of kind %1</source>
        <translation>%1 종류의 온전한 값이 아닙니다</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>데이터베이스가 손상되었습니다</translation>
    </message>
    <message>
        <source>no folder for a copy: %1</source>
        <translation>사본을 둘 폴더가 없습니다: %1</translation>
    </message>
    <message>
        <source>process %1 keeps it locked</source>
        <translation>프로세스 %1이(가) 잠그고 있습니다</translation>
    </message>
    <message>
        <source>%1 is no regular file</source>
        <translation>%1은(는) 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>no space is left in %1</source>
        <translation>%1에 남은 공간이 없습니다</translation>
    </message>
    <message>
        <source>Reads the fonts of this machine that have changed since the last scan, writes down what it learned for the next one, and tells what it did and how long each step took.</source>
        <translation>마지막 스캔 이후 바뀐 이 컴퓨터의 글꼴을 읽고, 알아낸 것을 다음 스캔을 위해 기록하며, 한 일과 단계별로 걸린 시간을 알려 줍니다.</translation>
    </message>
    <message>
        <source>Read the cache</source>
        <translation>캐시 읽기</translation>
    </message>
    <message>
        <source>Find files</source>
        <translation>파일 찾기</translation>
    </message>
    <message>
        <source>Read faces</source>
        <translation>페이스 읽기</translation>
    </message>
    <message>
        <source>Identify families</source>
        <translation>패밀리 식별</translation>
    </message>
    <message>
        <source>Group families</source>
        <translation>패밀리 묶기</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>a time in milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Fonts: %1 found, %2 read, %3 unchanged</source>
        <translation>글꼴: 찾음 %1개, 읽음 %2개, 그대로 %3개</translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>스타일 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Families: %1 with %2, %3 newly identified</source>
        <translation>패밀리: %1개(%2), 새로 식별 %3개</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>scan takes folders as --folder DIR</source>
        <translation>scan의 폴더는 --folder DIR로 정합니다</translation>
    </message>
    <message>
        <source>Lists the font families that the window&apos;s search field finds: those with TEXT in their name, in a name in another language or in their manufacturer&apos;s name, whatever its case, accents and width, Hiragana for Katakana. One line each: the name, a tab, the styles.</source>
        <translation>창의 검색란이 찾는 글꼴 패밀리를 나열합니다: 이름이나 다른 언어의 이름, 제작사 이름에 TEXT가 든 패밀리를 대소문자, 악센트, 전각과 반각, 히라가나와 가타카나를 가리지 않고 찾습니다. 한 줄에 하나씩: 이름, 탭, 스타일.</translation>
    </message>
    <message>
        <source>search takes one text</source>
        <translation>search에는 텍스트 하나를 씁니다</translation>
    </message>
    <message>
        <source>the text needs %1 pixels of height; give a --height up to %2</source>
        <translation>텍스트의 높이가 %1픽셀 필요합니다. --height를 %2까지 줄 수 있습니다</translation>
    </message>
    <message>
        <source>the picture is too small for all of the text</source>
        <translation>그림이 너무 작아 텍스트를 모두 담을 수 없습니다</translation>
    </message>
    <message>
        <source>Draws text in a face of a font file. In an SVG or PDF the letters are outlines; no font is embedded.</source>
        <translation>글꼴 파일의 페이스로 텍스트를 그립니다. SVG나 PDF에서 글자는 윤곽선이며, 글꼴은 임베딩하지 않습니다.</translation>
    </message>
    <message>
        <source>what to write, a .png, .svg or .pdf by its name; never a font file</source>
        <translation>쓸 파일, 이름에 따라 .png, .svg, .pdf 중 하나. 글꼴 파일에는 쓰지 않음</translation>
    </message>
    <message>
        <source>what to draw; a pangram if not given</source>
        <translation>그릴 텍스트, 없으면 팬그램</translation>
    </message>
    <message>
        <source>which face of a collection, from 0</source>
        <translation>컬렉션의 몇 번째 페이스인지, 0부터</translation>
    </message>
    <message>
        <source>a named instance of a variable face</source>
        <translation>가변 페이스의 이름 있는 인스턴스</translation>
    </message>
    <message>
        <source>values of axes: wght=650,wdth=80</source>
        <translation>축의 값: wght=650,wdth=80</translation>
    </message>
    <message>
        <source>OpenType features: smcp,onum=0,ss01=1,-liga,+dlig</source>
        <translation>OpenType 기능: smcp,onum=0,ss01=1,-liga,+dlig</translation>
    </message>
    <message>
        <source>which palette of a colour font, from 0</source>
        <translation>컬러 글꼴의 몇 번째 팔레트인지, 0부터</translation>
    </message>
    <message>
        <source>for forms of that language: ja, zh-Hant, sr (BCP 47)</source>
        <translation>그 언어의 자형: ja, zh-Hant, sr (BCP 47)</translation>
    </message>
    <message>
        <source>of the text; auto, by its first letter, if not given</source>
        <translation>텍스트의 방향, 없으면 auto(첫 글자에 따름)</translation>
    </message>
    <message>
        <source>pixels after each letter, -1000 to 1000</source>
        <translation>글자마다 뒤에 둘 픽셀, -1000~1000</translation>
    </message>
    <message>
        <source>pixels per em, 1 to 4096; 48 if not given</source>
        <translation>em당 픽셀, 1~4096. 없으면 48</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; the text wraps. As wide as the text if not given</source>
        <translation>픽셀, 1~16384. 텍스트가 줄바꿈됨. 없으면 텍스트의 폭</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; as high as the text if not given</source>
        <translation>픽셀, 1~16384. 없으면 텍스트의 높이</translation>
    </message>
    <message>
        <source>of the text; black if not given</source>
        <translation>텍스트의 색상, 없으면 검은색</translation>
    </message>
    <message>
        <source>white if not given</source>
        <translation>없으면 흰색</translation>
    </message>
    <message>
        <source>specimen takes one font file</source>
        <translation>specimen에는 글꼴 파일 하나를 씁니다</translation>
    </message>
    <message>
        <source>specimen needs a picture to write: -o PICTURE</source>
        <translation>specimen에는 쓸 그림이 필요합니다: -o PICTURE</translation>
    </message>
    <message>
        <source>%1: the face has no instance %2</source>
        <translation>%1: 페이스에 인스턴스 %2이(가) 없습니다</translation>
    </message>
    <message>
        <source>%1: the face has no axes</source>
        <translation>%1: 페이스에 축이 없습니다</translation>
    </message>
    <message>
        <source>%1: the face has no axis %2, only %3</source>
        <translation>%1: 페이스에 축 %2이(가) 없고 %3만 있습니다</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3: drawn with %4 instead of %5</source>
        <translation>%1의 범위는 %2~%3입니다. %5 대신 %4(으)로 그렸습니다</translation>
    </message>
    <message>
        <source>the face has no feature %1</source>
        <translation>페이스에 기능 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>%1: the face has no palettes</source>
        <translation>%1: 페이스에 팔레트가 없습니다</translation>
    </message>
    <message>
        <source>%1: the face has no palette %2, only 0 to %3</source>
        <translation>%1: 페이스에 팔레트 %2이(가) 없고 0~%3만 있습니다</translation>
    </message>
    <message>
        <source>%1 takes a list of features as smcp,onum=0,-liga</source>
        <translation>%1에는 smcp,onum=0,-liga처럼 기능 목록을 씁니다</translation>
    </message>
    <message>
        <source>%1 takes a list of axes as wght=650,wdth=80</source>
        <translation>%1에는 wght=650,wdth=80처럼 축 목록을 씁니다</translation>
    </message>
    <message>
        <source>%1 takes a language as ja, zh-Hant or sr-Latn-RS (BCP 47)</source>
        <translation>%1에는 ja, zh-Hant, sr-Latn-RS처럼 언어를 씁니다(BCP 47)</translation>
    </message>
    <message>
        <source>%1 takes ltr, rtl or auto</source>
        <translation>%1에는 ltr, rtl, auto 중 하나를 씁니다</translation>
    </message>
    <message>
        <source>%1 takes a colour as #RRGGBB</source>
        <translation>%1에는 #RRGGBB처럼 색상을 씁니다</translation>
    </message>
    <message>
        <source>Tells what is available to every program, one line for each family: the name, a tab, &quot;active (copied)&quot;, &quot;active (registered)&quot;, &quot;active (system)&quot;, &quot;partly active&quot; or &quot;inactive&quot;. Of families that are named it tells of the files too, each on a line that begins with a tab: what it is (copied, registered, inactive, system), a tab, the file; of copies then a tab, and where they came from; of originals that were copied a tab, and what is active for them. A word with a slash is a file; its families are then judged by that file alone.</source>
        <translation>모든 프로그램에서 쓸 수 있는 것을 패밀리마다 한 줄씩 알려 줍니다: 이름, 탭, &quot;active (copied)&quot;, &quot;active (registered)&quot;, &quot;active (system)&quot;, &quot;partly active&quot; 또는 &quot;inactive&quot;. 지정한 패밀리는 파일도 알려 주며, 파일마다 탭으로 시작하는 한 줄입니다: 상태(copied, registered, inactive, system), 탭, 파일. 사본에는 탭과 원래 위치가, 복사된 원본에는 탭과 그 대신 활성인 파일이 이어집니다. 빗금(/)이 든 인수는 파일이며, 그 패밀리는 그 파일만으로 판단합니다.</translation>
    </message>
    <message>
        <source>one JSON array of families instead, always with their files</source>
        <translation>패밀리의 JSON 배열 하나로 출력, 항상 파일 포함</translation>
    </message>
    <message>
        <source>Lists the styles, one line each: the name, a tab, the number of families; or the families of one, by name. Changes are seen at once by a window that is open. The window sorts families into styles by their names once, at its first start.</source>
        <translation>스타일을 한 줄에 하나씩(이름, 탭, 패밀리 수) 나열하거나, 한 스타일의 패밀리를 이름순으로 나열합니다. 바꾼 내용은 열려 있는 창에 바로 나타납니다. 창은 처음 시작할 때 한 번, 패밀리를 이름에 따라 스타일로 분류합니다.</translation>
    </message>
    <message>
        <source>a style of your own</source>
        <translation>나만의 스타일</translation>
    </message>
    <message>
        <source>only a style of your own, not one of those that every library has</source>
        <translation>나만의 스타일만, 모든 라이브러리에 있는 스타일은 안 됨</translation>
    </message>
    <message>
        <source>likewise; its families are in no style then</source>
        <translation>위와 같음, 그 패밀리는 속한 스타일이 없어짐</translation>
    </message>
    <message>
        <source>moves families there: a family is in one style at most</source>
        <translation>패밀리를 스타일로 이동, 한 패밀리는 한 스타일에만 속함</translation>
    </message>
    <message>
        <source>takes families out of it; they are in no style then</source>
        <translation>패밀리를 스타일에서 제거, 속한 스타일이 없어짐</translation>
    </message>
    <message>
        <source>makes these families its members; those that leave are in no style then</source>
        <translation>이 패밀리만 스타일에 속하게 함, 빠진 패밀리는 속한 스타일이 없어짐</translation>
    </message>
    <message>
        <source>STYLE is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a style; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>STYLE은 --json이 보여 주는 ID이거나 이름입니다. 이름의 대소문자는 여러 스타일에 맞지 않는 한 구분하지 않습니다. FAMILY는 이 컴퓨터나 스타일에 있는 패밀리의 이름입니다. -만 쓰면 표준 입력에서 이름을 한 줄에 하나씩 읽습니다. 명령은 전부 실행되거나 전혀 실행되지 않습니다.</translation>
    </message>
    <message>
        <source>every library has the style %1, which cannot be renamed or deleted</source>
        <translation>스타일 %1은(는) 모든 라이브러리에 있어 이름을 바꾸거나 삭제할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 needs a family, a file or --collection</source>
        <translation>%1에는 패밀리나 파일, --collection이 필요합니다</translation>
    </message>
    <message>
        <source>the preference %1 cannot be read (%2)</source>
        <translation>환경설정 %1을(를) 읽을 수 없습니다(%2)</translation>
    </message>
    <message>
        <source>%1; what stood there is kept as %2</source>
        <translation>%1. 있던 내용은 %2에 남겨 두었습니다</translation>
    </message>
    <message>
        <source>Asks the makers of Lorva over the network whether there is a newer release. Nothing is downloaded or installed. One line tells that this is the newest; of a newer one the first line tells version, day and page, and the second, if there is one, what is new. The exit status is 0 in both cases, and 1 when neither could be found out, as in a build whose updates come with the system&apos;s.</source>
        <translation>더 새로운 릴리스가 있는지 네트워크로 Lorva 제작자에게 물어봅니다. 내려받거나 설치하는 것은 없습니다. 최신이면 한 줄로 알려 줍니다. 더 새로운 것이 있으면 첫 줄에 버전, 날짜, 페이지를, 있다면 둘째 줄에 새로운 점을 알려 줍니다. 종료 상태는 두 경우 모두 0이고, 시스템이 업데이트를 제공하는 빌드처럼 알아낼 수 없으면 1입니다.</translation>
    </message>
    <message>
        <source>one JSON object instead: isNewer, runningVersion, version, date, page, summary</source>
        <translation>JSON 객체 하나로 출력: isNewer, runningVersion, version, date, page, summary</translation>
    </message>
    <message>
        <source>ask there instead, https or on this computer; to try out a feed</source>
        <translation>대신 물어볼 곳, https 또는 이 컴퓨터. 피드를 시험할 때 사용</translation>
    </message>
    <message>
        <source>the feed&apos;s Ed25519 key, 32 bytes in Base64, instead of the makers&apos;</source>
        <translation>제작자의 키 대신 쓸 피드의 Ed25519 키, Base64로 적은 32바이트</translation>
    </message>
    <message>
        <source>--feed needs an address</source>
        <translation>--feed에는 주소가 필요합니다</translation>
    </message>
    <message>
        <source>Lorva %1 is up to date</source>
        <translation>Lorva %1은(는) 최신 버전입니다</translation>
    </message>
    <message>
        <source>Lorva %1 was released on %2; this is %3: %4</source>
        <translation>Lorva %1이(가) %2에 나왔습니다. 지금 버전은 %3입니다: %4</translation>
    </message>
    <message>
        <source>updates takes no further words</source>
        <translation>updates에는 다른 인수를 쓰지 않습니다</translation>
    </message>
    <message>
        <source>this build does not look for new versions: the system&apos;s software updates bring them</source>
        <translation>이 빌드는 새 버전을 찾지 않습니다. 새 버전은 시스템의 소프트웨어 업데이트로 제공됩니다</translation>
    </message>
    <message>
        <source>%1; lorvactl doctor tells more</source>
        <translation>%1. 자세한 내용은 lorvactl doctor로 볼 수 있습니다</translation>
    </message>
    <message>
        <source>%1 and counts as absent</source>
        <translation>%1. 없는 것으로 봅니다</translation>
    </message>
    <message>
        <source>%1 could not be read and was moved to %2</source>
        <translation>%1을(를) 읽을 수 없어 %2에 옮겨 두었습니다</translation>
    </message>
    <message>
        <source>the preferences could not be read</source>
        <translation>환경설정을 읽지 못했습니다</translation>
    </message>
    <message>
        <source>the preferences could not be written</source>
        <translation>환경설정을 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <translation>%1에는 %2을(를) 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>%1 takes no empty name</source>
        <translation>%1에는 빈 이름을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>%1 needs more words</source>
        <translation>%1에 쓴 인수가 모자랍니다</translation>
    </message>
    <message>
        <source>%1 takes fewer words</source>
        <translation>%1에 쓴 인수가 너무 많습니다</translation>
    </message>
    <message>
        <source>%1 needs a family, and standard input names none</source>
        <translation>%1에는 패밀리가 필요한데 표준 입력에 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>a name within a message, in the quotation marks of the language</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>between the parts of a list</extracomment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n families</source>
        <translation>
            <numerusform>패밀리 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>글꼴 파일 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>draw the picture of a font that file managers show</source>
        <translation>파일 관리자에 표시되는 글꼴 그림 그리기</translation>
    </message>
    <message>
        <source>tell what a report of a fault needs, and nobody&apos;s names</source>
        <translation>오류 보고에 필요한 정보 알림, 이름은 없음</translation>
    </message>
    <message>
        <source>Tells what a report of a fault needs: versions, the desktop, counts, sizes, times, what the doctor finds, and settings. Nothing in it names a font, a file, a folder, a collection or a person, and no text that was typed is in it. It is in English, whatever the language.</source>
        <translation>오류 보고에 필요한 정보를 알려 줍니다: 버전, 데스크톱, 개수, 크기, 시간, doctor가 발견한 것, 설정. 글꼴, 파일, 폴더, 모음, 사람의 이름이나 입력한 텍스트는 들어 있지 않습니다. 언어와 상관없이 영어로 출력합니다.</translation>
    </message>
    <message>
        <source>report takes no words</source>
        <translation>report에는 인수를 쓰지 않습니다</translation>
    </message>
    <message>
        <source>%1: has no letters or symbols to show</source>
        <translation>%1: 표시할 글자나 기호가 없습니다</translation>
    </message>
    <message>
        <source>Draws the picture of a font that file managers show: &quot;Aa&quot;, or letters or symbols of the font&apos;s own script, on a square sheet, written as PNG. FONT is a file or its file: address. It is read in a process that can do nothing but read and draw, within bounds of time and memory; for a font that cannot be shown nothing is written.</source>
        <translation>파일 관리자에 표시되는 글꼴 그림을 그립니다: 정사각형 바탕에 “Aa” 또는 글꼴의 문자 체계에 속한 글자나 기호를 그려 PNG로 씁니다. FONT는 파일이나 그 file: 주소입니다. 읽고 그리는 것만 할 수 있는 프로세스가 정해진 시간과 메모리 안에서 읽으며, 표시할 수 없는 글꼴이면 아무것도 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>pixels each way, 16 to 2048; 256 if not given</source>
        <translation>가로세로 픽셀, 16~2048. 없으면 256</translation>
    </message>
    <message>
        <source>which face of a collection, from 0; the first that can be drawn if not given</source>
        <translation>컬렉션의 몇 번째 페이스인지, 0부터. 없으면 그릴 수 있는 첫 페이스</translation>
    </message>
    <message>
        <source>thumbnail takes a font file and a picture to write</source>
        <translation>thumbnail에는 글꼴 파일과 쓸 그림을 씁니다</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>그림을 인코딩할 수 없습니다</translation>
    </message>
    <message>
        <source>Reasons stay in the language of whoever switched the fonts, with --json and --csv, too.</source>
        <translation>이유는 글꼴을 켜거나 끈 사람의 언어 그대로 남으며, --json과 --csv에서도 같습니다.</translation>
    </message>
    <message>
        <source>the stored value is of another type</source>
        <translation>저장된 값의 유형이 다릅니다</translation>
    </message>
</context>
</TS>
