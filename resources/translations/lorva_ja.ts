<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ActivationTexts</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences, one after the other.</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>De-activate %1?</source>
        <translation>%1 を無効にしますか?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>無効にする</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>フォルダーを選択…</translation>
    </message>
    <message>
        <source>The reason is not known.</source>
        <translation>原因は不明です。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n Fonts</source>
        <translation>
            <numerusform>%n 個のフォント</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n 個のフォント</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names.</extracomment>
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the names of a list.</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>The names of a list, and the last of them.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more families</source>
        <extracomment>Families that a list of names does not name.</extracomment>
        <translation>
            <numerusform>ほか %n 個のファミリー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. Activating makes them available too.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>このフォントのファイルには %1 も入っています。有効にすると、それらも使えるようになります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. Activating makes them available too.</source>
        <translation>
            <numerusform>これらのフォントのファイルには %1 も入っています。有効にすると、それらも使えるようになります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. De-activating removes all of them.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>このフォントのファイルには %1 も入っています。無効にすると、それらもすべて使えなくなります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. De-activating removes all of them.</source>
        <translation>
            <numerusform>これらのフォントのファイルには %1 も入っています。無効にすると、それらもすべて使えなくなります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to activate</source>
        <translation>有効にするものはありません</translation>
    </message>
    <message>
        <source>Every user-controllable font in %1 is already active.</source>
        <translation>%1 のうち、切り替えられるフォントはすべて有効になっています。</translation>
    </message>
    <message>
        <source>Every selected font is already active.</source>
        <translation>選択したフォントはすべて有効になっています。</translation>
    </message>
    <message>
        <source>Nothing to de-activate</source>
        <translation>無効にするものはありません</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in %1.</source>
        <translation>%1 には、切り替えられる有効なフォントがありません。</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in the selection.</source>
        <translation>選択項目には、切り替えられる有効なフォントがありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to activate.</source>
        <translation>
            <numerusform>%n 個のファイルを有効にできませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Activation of %1 stopped</source>
        <translation>%1 の有効化を中止しました</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are available in every app on your Mac.</source>
        <translation>
            <numerusform>%2 個中 %1 個のファイルを、このコンピューターのすべてのアプリで使えます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully activate %1</source>
        <translation>%1 の一部を有効にできませんでした</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <translation>%1 を有効にしました</translation>
    </message>
    <message>
        <source>Now available in every app on your Mac.</source>
        <translation>このコンピューターのすべてのアプリで使えます。</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to de-activate.</source>
        <translation>
            <numerusform>%n 個のファイルを無効にできませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activation of %1 stopped</source>
        <translation>%1 の無効化を中止しました</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are no longer available system-wide.</source>
        <translation>
            <numerusform>%2 個中 %1 個のファイルが、システム全体で使えなくなりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully de-activate %1</source>
        <translation>%1 の一部を無効にできませんでした</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 を無効にしました</translation>
    </message>
    <message>
        <source>No longer available system-wide.</source>
        <translation>システム全体で使えなくなりました。</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be brought back.</source>
        <translation>
            <numerusform>%n 個のファイルを復元できませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are back.</source>
        <translation>
            <numerusform>%2 個中 %1 個のファイルを復元しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully bring back %1</source>
        <translation>%1 の一部を復元できませんでした</translation>
    </message>
    <message>
        <source>The font will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>このフォントはシステム全体で使えなくなります。元のフォントファイルには影響しません。</translation>
    </message>
    <message>
        <source>The fonts will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>これらのフォントはシステム全体で使えなくなります。元のフォントファイルには影響しません。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font files are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>%1 は Lorva がインストールしたものではないため、元のフォントファイルの場所がわかりません。移動先のフォルダーを選んでください。選ばないと、唯一のコピーが失われます。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install some of these fonts, so we don&apos;t know where the originals are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>これらのフォントの一部は Lorva がインストールしたものではないため、元のファイルの場所がわかりません。移動先のフォルダーを選んでください。選ばないと、唯一のコピーが失われます。</translation>
    </message>
    <message>
        <source>The style will no longer be available system-wide.</source>
        <translation>このスタイルはシステム全体で使えなくなります。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font file is. Choose a folder to move it to, otherwise you&apos;d lose your only copy.</source>
        <translation>%1 は Lorva がインストールしたものではないため、元のフォントファイルの場所がわかりません。移動先のフォルダーを選んでください。選ばないと、唯一のコピーが失われます。</translation>
    </message>
    <message>
        <source>Choose a folder for the font files that are de-activated.</source>
        <translation>無効にするフォントファイルの移動先フォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Move Here</source>
        <translation>ここに移動</translation>
    </message>
    <message>
        <source>Activating %1…</source>
        <translation>%1 を有効にしています…</translation>
    </message>
    <message numerus="yes">
        <source>Activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>%1 を有効にしています… %2/%3 ファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activating %1…</source>
        <translation>%1 を無効にしています…</translation>
    </message>
    <message numerus="yes">
        <source>De-activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>%1 を無効にしています… %2/%3 ファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Bringing back %1…</source>
        <translation>%1 を復元しています…</translation>
    </message>
    <message numerus="yes">
        <source>Bringing back %1… %2 of %3 files</source>
        <translation>
            <numerusform>%1 を復元しています… %2/%3 ファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t read the activation history</source>
        <translation>有効化の履歴を読み込めませんでした</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the list</source>
        <translation>リストを保存できませんでした</translation>
    </message>
    <message>
        <source>Files That Failed</source>
        <translation>失敗したファイル</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be switched on or off.</source>
        <translation>
            <numerusform>%n 個のファイルの有効/無効を切り替えられませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>No file has failed.</source>
        <translation>失敗したファイルはありません。</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>cannot write %1: not a regular file</source>
        <translation>%1 に書き込めません: 通常のファイルではありません</translation>
    </message>
</context>
<context>
    <name>BackgroundImagePanel</name>
    <message>
        <source>White Text</source>
        <translation>白い文字</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>黒い文字</translation>
    </message>
    <message>
        <source>Custom Text Color</source>
        <translation>カスタム文字色</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文字色</translation>
    </message>
    <message>
        <source>Your Image</source>
        <translation>自分の画像</translation>
    </message>
    <message>
        <source>Add Image…</source>
        <translation>画像を追加…</translation>
    </message>
</context>
<context>
    <name>BackgroundImageStore</name>
    <message>
        <source>The image is not there</source>
        <translation>画像が見つかりません</translation>
    </message>
    <message>
        <source>The file is too large for a background</source>
        <translation>ファイルが大きすぎて背景に使えません</translation>
    </message>
</context>
<context>
    <name>BackgroundImages</name>
    <message>
        <source>Dusk</source>
        <extracomment>Background images, named by what they remind of.</extracomment>
        <translation>黄昏</translation>
    </message>
    <message>
        <source>Dawn</source>
        <translation>暁</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>熾火</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙</translation>
    </message>
    <message>
        <source>Lagoon</source>
        <translation>ラグーン</translation>
    </message>
    <message>
        <source>Fern</source>
        <translation>シダ</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>青写真</translation>
    </message>
    <message>
        <source>Terrazzo</source>
        <translation>テラゾー</translation>
    </message>
    <message>
        <source>Ink Wash</source>
        <translation>水墨</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>プラム</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>オーロラ</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>グラファイト</translation>
    </message>
</context>
<context>
    <name>BrowserActions</name>
    <message>
        <source>There is no place to keep images</source>
        <translation>画像を保存する場所がありません</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>%n 個のフォントを有効にする…</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>無効にする</translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>%n 個のフォントを無効にする</numerusform>
        </translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>有効にする…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>残りのスタイルを有効にする…</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The style category of a family: Serif, Script and so on.</extracomment>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>コレクション</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>ファウンドリー</translation>
    </message>
    <message>
        <source>None</source>
        <comment>style</comment>
        <extracomment>The family has no style category.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>None</source>
        <comment>foundry</comment>
        <extracomment>The family has no foundry.</extracomment>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>CharacterBlocks</name>
    <message>
        <source>Latin</source>
        <translation>ラテン文字</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Punctuation &amp; Symbols</source>
        <translation>約物と記号</translation>
    </message>
    <message>
        <source>Kana</source>
        <translation>かな</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>ハングル</translation>
    </message>
    <message>
        <source>Han</source>
        <extracomment>The Chinese characters.</extracomment>
        <translation>漢字</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Other characters.</extracomment>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>CharacterCells</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A character, and its name.</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>このグリフに対応する文字はありません。</translation>
    </message>
</context>
<context>
    <name>CharacterNames</name>
    <message>
        <source>Uppercase letter</source>
        <extracomment>The general category that Unicode gives a character.</extracomment>
        <translation>大文字</translation>
    </message>
    <message>
        <source>Lowercase letter</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>Titlecase letter</source>
        <translation>タイトルケース文字</translation>
    </message>
    <message>
        <source>Modifier letter</source>
        <translation>修飾文字</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Mathematical symbol</source>
        <translation>数学記号</translation>
    </message>
    <message>
        <source>Currency symbol</source>
        <translation>通貨記号</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>記号</translation>
    </message>
    <message>
        <source>Combining mark</source>
        <translation>結合文字</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>約物</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>A kind of character, not the key.</extracomment>
        <translation>空白</translation>
    </message>
    <message>
        <source>Private use</source>
        <extracomment>A kind of character.</extracomment>
        <translation>私用領域</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>CharacterPopoverViewController</name>
    <message>
        <source>Copy %1: %2</source>
        <translation>%1をコピー: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>Ultramarine</source>
        <extracomment>Pairs of colors, named by the more striking one.</extracomment>
        <translation>群青</translation>
    </message>
    <message>
        <source>Vermilion</source>
        <translation>朱</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>深緑</translation>
    </message>
    <message>
        <source>Aubergine</source>
        <translation>茄子紺</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙</translation>
    </message>
    <message>
        <source>Lemon</source>
        <translation>レモン</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>桜色</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>空色</translation>
    </message>
    <message>
        <source>Swap Text and Background</source>
        <translation>文字と背景を入れ替え</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>The color of the letters is edited.</extracomment>
        <translation>文字</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The color of the background is edited.</extracomment>
        <translation>背景</translation>
    </message>
    <message>
        <source>Low contrast %1:1</source>
        <extracomment>A ratio of brightness such as 4.5:1.</extracomment>
        <translation>低コントラスト %1:1</translation>
    </message>
    <message>
        <source>Contrast %1:1</source>
        <translation>コントラスト %1:1</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>%1 — not available</source>
        <translation>%1 — 利用できません</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>%1: took too long to read and was given up</source>
        <translation>%1: 読み込みに時間がかかりすぎたため中止しました</translation>
    </message>
    <message>
        <source>%1: took too much time or memory to read and was given up</source>
        <translation>%1: 読み込みに時間またはメモリーがかかりすぎたため中止しました</translation>
    </message>
    <message>
        <source>%1: was given up: reading it led to what reading never needs</source>
        <translation>%1: 読み込みに必要のない動作が起きたため中止しました</translation>
    </message>
    <message>
        <source>%1: takes more memory than it may have</source>
        <translation>%1: 使用できる量を超えるメモリーが必要です</translation>
    </message>
    <message>
        <source>%1: is damaged; reading it failed</source>
        <translation>%1: 破損しているため読み込めませんでした</translation>
    </message>
    <message>
        <source>no new process can be started: %1</source>
        <translation>新しいプロセスを開始できません: %1</translation>
    </message>
    <message>
        <source>%1: reading it needed something that fonts never need, so it was stopped</source>
        <translation>%1: フォントには不要な動作が必要になったため、読み込みを中止しました</translation>
    </message>
    <message>
        <source>%1: its picture is too large</source>
        <translation>%1: 描画結果が大きすぎます</translation>
    </message>
</context>
<context>
    <name>DesktopTrash</name>
    <message>
        <source>cannot move %1 to the Trash: its volume has none</source>
        <translation>%1 をゴミ箱に移動できません: ボリュームにゴミ箱がありません</translation>
    </message>
    <message>
        <source>cannot take %1 from the Trash: the name is taken</source>
        <translation>%1 をゴミ箱から戻せません: 同じ名前のファイルがあります</translation>
    </message>
</context>
<context>
    <name>DetailMenu</name>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>CSS としてコピー</translation>
    </message>
</context>
<context>
    <name>DiscoverFoundry</name>
    <message>
        <source>Independent Swiss type foundry offering original retail and custom typefaces with a contemporary aesthetic in the Swiss tradition.</source>
        <translation>スイスの独立系ファウンドリー。スイスの伝統を受け継ぎながら現代的な美しさをもつ、オリジナルの市販書体とカスタム書体を提供しています。</translation>
    </message>
    <message>
        <source>Type foundry of Kris Sowersby in Wellington, New Zealand.</source>
        <translation>ニュージーランド、ウェリントンの Kris Sowersby によるファウンドリー。</translation>
    </message>
    <message>
        <source>Montréal-based type foundry offering free-to-try retail typefaces.</source>
        <translation>モントリオールのファウンドリー。無料で試せる市販書体を提供しています。</translation>
    </message>
    <message>
        <source>Berlin-based type design studio offering retail and bespoke typefaces, design software, research, and consultancy.</source>
        <translation>ベルリンの書体デザインスタジオ。市販書体とオーダーメイド書体、デザインソフトウェアのほか、研究やコンサルティングも手がけています。</translation>
    </message>
    <message>
        <source>Indonesian type foundry offering contemporary display and text families.</source>
        <translation>インドネシアのファウンドリー。現代的なディスプレイ書体と本文書体のファミリーを提供しています。</translation>
    </message>
    <message>
        <source>Type foundry from Gijón, Spain, offering typefaces with pay-what-you-want options.</source>
        <translation>スペイン、ヒホンのファウンドリー。価格を自分で決められる書体を提供しています。</translation>
    </message>
    <message>
        <source>Prague-based type foundry offering large variable families.</source>
        <translation>プラハのファウンドリー。大規模なバリアブルフォントファミリーを提供しています。</translation>
    </message>
    <message>
        <source>Californian type foundry of James Edmondson, offering expressive display typefaces.</source>
        <translation>カリフォルニアの James Edmondson によるファウンドリー。表情豊かなディスプレイ書体を提供しています。</translation>
    </message>
    <message>
        <source>Stockholm-based type foundry of Göran Söderström.</source>
        <translation>ストックホルムの Göran Söderström によるファウンドリー。</translation>
    </message>
    <message>
        <source>Type foundry from Geneva, Switzerland.</source>
        <translation>スイス、ジュネーブのファウンドリー。</translation>
    </message>
    <message>
        <source>Type foundry offering typefaces for text and interfaces.</source>
        <translation>本文とインターフェイスのための書体を提供するファウンドリー。</translation>
    </message>
    <message>
        <source>Swiss type foundry offering typefaces and design books.</source>
        <translation>書体とデザイン書籍を提供するスイスのファウンドリー。</translation>
    </message>
    <message>
        <source>Type foundry of Mattox Shuler, offering display families and workhorses.</source>
        <translation>Mattox Shuler によるファウンドリー。ディスプレイ書体と実用的な定番書体を提供しています。</translation>
    </message>
    <message>
        <source>Californian type foundry of Amy and Jen Hood.</source>
        <translation>カリフォルニアの Amy Hood と Jen Hood によるファウンドリー。</translation>
    </message>
    <message>
        <source>Type foundry with a small catalogue of contemporary typefaces.</source>
        <translation>現代的な書体を少数精鋭でそろえたファウンドリー。</translation>
    </message>
    <message>
        <source>Type foundry of the lettering artist Erik Marinovich.</source>
        <translation>レタリングアーティスト Erik Marinovich によるファウンドリー。</translation>
    </message>
    <message>
        <source>Type foundry of Dino dos Santos in Porto, Portugal.</source>
        <translation>ポルトガル、ポルトの Dino dos Santos によるファウンドリー。</translation>
    </message>
    <message>
        <source>The first open-source type foundry, launched in 2009, providing a curated collection of professional-quality free fonts like League Gothic and League Spartan.</source>
        <translation>2009 年に始まった、最初のオープンソースファウンドリー。League Gothic や League Spartan など、プロ品質の無料フォントを厳選して提供しています。</translation>
    </message>
</context>
<context>
    <name>FaceInformation</name>
    <message>
        <source>Copyright</source>
        <translation>著作権</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Unique identifier</source>
        <translation>固有 ID</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>フルネーム</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 名</translation>
    </message>
    <message>
        <source>Trademark</source>
        <translation>商標</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造元</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>デザイナー</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Manufacturer’s address</source>
        <translation>製造元のアドレス</translation>
    </message>
    <message>
        <source>Designer’s address</source>
        <translation>デザイナーのアドレス</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Licence address</source>
        <translation>ライセンスのアドレス</translation>
    </message>
    <message>
        <source>Typographic family</source>
        <translation>タイポグラフィックファミリー</translation>
    </message>
    <message>
        <source>Typographic style</source>
        <translation>タイポグラフィックスタイル</translation>
    </message>
    <message>
        <source>Compatible full name</source>
        <translation>互換フルネーム</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>サンプルテキスト</translation>
    </message>
    <message>
        <source>PostScript CID name</source>
        <translation>PostScript CID 名</translation>
    </message>
    <message>
        <source>WWS family</source>
        <translation>WWS ファミリー</translation>
    </message>
    <message>
        <source>WWS style</source>
        <translation>WWS スタイル</translation>
    </message>
    <message>
        <source>Palette for light backgrounds</source>
        <translation>明るい背景用のパレット</translation>
    </message>
    <message>
        <source>Palette for dark backgrounds</source>
        <translation>暗い背景用のパレット</translation>
    </message>
    <message>
        <source>Variations PostScript name prefix</source>
        <translation>バリエーションの PostScript 名の接頭辞</translation>
    </message>
    <message>
        <source>Installable</source>
        <translation>インストール可</translation>
    </message>
    <message>
        <source>Restricted: not without the owner’s permission</source>
        <translation>制限あり: 所有者の許可が必要</translation>
    </message>
    <message>
        <source>Preview and print</source>
        <translation>プレビューと印刷</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>編集可</translation>
    </message>
    <message>
        <source>%1, bitmaps only</source>
        <extracomment>%1 is what a licence lets documents do with the font that they embed, such as &quot;Editable&quot;.</extracomment>
        <translation>%1、ビットマップのみ</translation>
    </message>
    <message>
        <source>%1, no subsetting, bitmaps only</source>
        <translation>%1、サブセット不可、ビットマップのみ</translation>
    </message>
    <message>
        <source>%1, no subsetting</source>
        <translation>%1、サブセット不可</translation>
    </message>
</context>
<context>
    <name>FeatureRegistry</name>
    <message>
        <source>All Typographic Features</source>
        <translation>すべてのタイポグラフィ機能</translation>
    </message>
    <message>
        <source>Ligatures</source>
        <translation>合字</translation>
    </message>
    <message>
        <source>Cursive Connection</source>
        <translation>筆記体の連結</translation>
    </message>
    <message>
        <source>Letter Case</source>
        <translation>大文字/小文字</translation>
    </message>
    <message>
        <source>Vertical Substitution</source>
        <translation>縦組み置換</translation>
    </message>
    <message>
        <source>Linguistic Rearrangement</source>
        <translation>言語による並べ替え</translation>
    </message>
    <message>
        <source>Number Spacing</source>
        <translation>数字の幅</translation>
    </message>
    <message>
        <source>Smart Swashes</source>
        <translation>スマートスワッシュ</translation>
    </message>
    <message>
        <source>Diacritics</source>
        <translation>ダイアクリティカルマーク</translation>
    </message>
    <message>
        <source>Vertical Position</source>
        <translation>垂直位置</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>分数</translation>
    </message>
    <message>
        <source>Overlapping Characters</source>
        <translation>文字の重なり</translation>
    </message>
    <message>
        <source>Typographic Extras</source>
        <translation>タイポグラフィの追加機能</translation>
    </message>
    <message>
        <source>Mathematical Extras</source>
        <translation>数学の追加機能</translation>
    </message>
    <message>
        <source>Ornament Sets</source>
        <translation>オーナメントセット</translation>
    </message>
    <message>
        <source>Character Alternatives</source>
        <translation>文字の代替字形</translation>
    </message>
    <message>
        <source>Design Complexity</source>
        <translation>デザインの複雑さ</translation>
    </message>
    <message>
        <source>Style Options</source>
        <translation>スタイルオプション</translation>
    </message>
    <message>
        <source>Character Shape</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Number Case</source>
        <translation>数字の形</translation>
    </message>
    <message>
        <source>Text Spacing</source>
        <translation>文字の幅</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>翻字</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>修飾字形</translation>
    </message>
    <message>
        <source>Kana Spacing</source>
        <translation>かなの幅</translation>
    </message>
    <message>
        <source>Ideographic Spacing</source>
        <translation>漢字の幅</translation>
    </message>
    <message>
        <source>Unicode Decomposition</source>
        <translation>Unicode 分解</translation>
    </message>
    <message>
        <source>Ruby Kana</source>
        <translation>ルビ用かな</translation>
    </message>
    <message>
        <source>CJK Symbol Alternatives</source>
        <translation>CJK 記号の代替字形</translation>
    </message>
    <message>
        <source>Ideographic Alternatives</source>
        <translation>漢字の代替字形</translation>
    </message>
    <message>
        <source>CJK Vertical Roman Placement</source>
        <translation>縦組み中の CJK 欧文の配置</translation>
    </message>
    <message>
        <source>Italic CJK Roman</source>
        <translation>CJK 欧文イタリック</translation>
    </message>
    <message>
        <source>Case-Sensitive Layout</source>
        <translation>大文字用レイアウト</translation>
    </message>
    <message>
        <source>Alternate Kana</source>
        <translation>かなの代替字形</translation>
    </message>
    <message>
        <source>Stylistic Alternatives</source>
        <translation>デザインのバリエーション</translation>
    </message>
    <message>
        <source>Contextual Alternatives</source>
        <translation>前後関係に依存する字形</translation>
    </message>
    <message>
        <source>Lower Case</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>Upper Case</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>Language Tag</source>
        <translation>言語タグ</translation>
    </message>
    <message>
        <source>CJK Roman Spacing</source>
        <translation>CJK 欧文の幅</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>必須の合字</translation>
    </message>
    <message>
        <source>Common Ligatures</source>
        <translation>一般的な合字</translation>
    </message>
    <message>
        <source>Rare Ligatures</source>
        <translation>まれな合字</translation>
    </message>
    <message>
        <source>Logos</source>
        <translation>ロゴ</translation>
    </message>
    <message>
        <source>Rebus Pictures</source>
        <translation>判じ絵</translation>
    </message>
    <message>
        <source>Diphthong Ligatures</source>
        <translation>二重母音の合字</translation>
    </message>
    <message>
        <source>Squared Ligatures</source>
        <translation>組文字</translation>
    </message>
    <message>
        <source>Abbreviated Squared Ligatures</source>
        <translation>略語の組文字</translation>
    </message>
    <message>
        <source>Symbol Ligatures</source>
        <translation>記号の合字</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>前後関係に依存する合字</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>歴史的な合字</translation>
    </message>
    <message>
        <source>Unconnected</source>
        <translation>連結なし</translation>
    </message>
    <message>
        <source>Partially Connected</source>
        <translation>一部を連結</translation>
    </message>
    <message>
        <source>Cursive</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Upper and Lower Case</source>
        <translation>大文字と小文字</translation>
    </message>
    <message>
        <source>All Capitals</source>
        <translation>すべて大文字</translation>
    </message>
    <message>
        <source>All Lower Case</source>
        <translation>すべて小文字</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>スモールキャピタル</translation>
    </message>
    <message>
        <source>Initial Capitals</source>
        <translation>頭文字を大文字</translation>
    </message>
    <message>
        <source>Initial Capitals and Small Capitals</source>
        <translation>頭文字を大文字、ほかはスモールキャピタル</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>ユニケース</translation>
    </message>
    <message>
        <source>Vertical Forms</source>
        <translation>縦組み用字形</translation>
    </message>
    <message>
        <source>Monospaced Numbers</source>
        <translation>等幅数字</translation>
    </message>
    <message>
        <source>Proportional Numbers</source>
        <translation>プロポーショナル数字</translation>
    </message>
    <message>
        <source>Third-Width Numbers</source>
        <translation>三分幅の数字</translation>
    </message>
    <message>
        <source>Quarter-Width Numbers</source>
        <translation>四分幅の数字</translation>
    </message>
    <message>
        <source>Word Initial Swashes</source>
        <translation>語頭のスワッシュ</translation>
    </message>
    <message>
        <source>Word Final Swashes</source>
        <translation>語末のスワッシュ</translation>
    </message>
    <message>
        <source>Line Initial Swashes</source>
        <translation>行頭のスワッシュ</translation>
    </message>
    <message>
        <source>Line Final Swashes</source>
        <translation>行末のスワッシュ</translation>
    </message>
    <message>
        <source>Non-Final Swashes</source>
        <translation>末尾以外のスワッシュ</translation>
    </message>
    <message>
        <source>Show Diacritics</source>
        <translation>ダイアクリティカルマークを表示</translation>
    </message>
    <message>
        <source>Hide Diacritics</source>
        <translation>ダイアクリティカルマークを非表示</translation>
    </message>
    <message>
        <source>Decompose Diacritics</source>
        <translation>ダイアクリティカルマークを分解</translation>
    </message>
    <message>
        <source>Normal Position</source>
        <translation>標準位置</translation>
    </message>
    <message>
        <source>Superiors</source>
        <translation>上付き文字</translation>
    </message>
    <message>
        <source>Inferiors</source>
        <translation>下付き文字</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>序数</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>科学用下付き文字</translation>
    </message>
    <message>
        <source>No Fractions</source>
        <translation>分数なし</translation>
    </message>
    <message>
        <source>Vertical Fractions</source>
        <translation>縦型の分数</translation>
    </message>
    <message>
        <source>Diagonal Fractions</source>
        <translation>斜線の分数</translation>
    </message>
    <message>
        <source>Prevent Overlap</source>
        <translation>重なりを防止</translation>
    </message>
    <message>
        <source>Hyphens to Em Dash</source>
        <translation>ハイフンを em ダッシュに</translation>
    </message>
    <message>
        <source>Hyphen to En Dash</source>
        <translation>ハイフンを en ダッシュに</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>スラッシュ付きゼロ</translation>
    </message>
    <message>
        <source>Form Interrobang</source>
        <translation>インテロバングを合成</translation>
    </message>
    <message>
        <source>Smart Quotes</source>
        <translation>スマート引用符</translation>
    </message>
    <message>
        <source>Periods to Ellipsis</source>
        <translation>ピリオドを三点リーダーに</translation>
    </message>
    <message>
        <source>Hyphen to Minus</source>
        <translation>ハイフンをマイナス記号に</translation>
    </message>
    <message>
        <source>Asterisk to Multiply</source>
        <translation>アスタリスクを乗算記号に</translation>
    </message>
    <message>
        <source>Slash to Divide</source>
        <translation>スラッシュを除算記号に</translation>
    </message>
    <message>
        <source>Inequality Ligatures</source>
        <translation>不等号の合字</translation>
    </message>
    <message>
        <source>Exponents</source>
        <translation>指数</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>数学用ギリシャ文字</translation>
    </message>
    <message>
        <source>No Ornaments</source>
        <translation>オーナメントなし</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>ディングバット</translation>
    </message>
    <message>
        <source>Pi Characters</source>
        <translation>パイ文字</translation>
    </message>
    <message>
        <source>Fleurons</source>
        <translation>花形装飾</translation>
    </message>
    <message>
        <source>Decorative Borders</source>
        <translation>装飾罫</translation>
    </message>
    <message>
        <source>International Symbols</source>
        <translation>国際記号</translation>
    </message>
    <message>
        <source>Mathematical Symbols</source>
        <translation>数学記号</translation>
    </message>
    <message>
        <source>No Alternates</source>
        <translation>代替字形なし</translation>
    </message>
    <message>
        <source>Design Level 1</source>
        <translation>デザインレベル 1</translation>
    </message>
    <message>
        <source>Design Level 2</source>
        <translation>デザインレベル 2</translation>
    </message>
    <message>
        <source>Design Level 3</source>
        <translation>デザインレベル 3</translation>
    </message>
    <message>
        <source>Design Level 4</source>
        <translation>デザインレベル 4</translation>
    </message>
    <message>
        <source>Design Level 5</source>
        <translation>デザインレベル 5</translation>
    </message>
    <message>
        <source>No Style Options</source>
        <translation>スタイルオプションなし</translation>
    </message>
    <message>
        <source>Display Text</source>
        <translation>ディスプレイ用</translation>
    </message>
    <message>
        <source>Engraved Text</source>
        <translation>刻印風</translation>
    </message>
    <message>
        <source>Illuminated Capitals</source>
        <translation>装飾頭文字</translation>
    </message>
    <message>
        <source>Titling Capitals</source>
        <translation>タイトル用大文字</translation>
    </message>
    <message>
        <source>Tall Capitals</source>
        <translation>背の高い大文字</translation>
    </message>
    <message>
        <source>Traditional Characters</source>
        <translation>旧字体</translation>
    </message>
    <message>
        <source>Simplified Characters</source>
        <translation>簡体字</translation>
    </message>
    <message>
        <source>JIS 1978 Characters</source>
        <translation>JIS78 字形</translation>
    </message>
    <message>
        <source>JIS 1983 Characters</source>
        <translation>JIS83 字形</translation>
    </message>
    <message>
        <source>JIS 1990 Characters</source>
        <translation>JIS90 字形</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 1</source>
        <translation>旧字体 1</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 2</source>
        <translation>旧字体 2</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 3</source>
        <translation>旧字体 3</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 4</source>
        <translation>旧字体 4</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 5</source>
        <translation>旧字体 5</translation>
    </message>
    <message>
        <source>Expert Characters</source>
        <translation>エキスパート字形</translation>
    </message>
    <message>
        <source>JIS 2004 Characters</source>
        <translation>JIS2004 字形</translation>
    </message>
    <message>
        <source>Hojo Characters</source>
        <translation>JIS 補助漢字字形</translation>
    </message>
    <message>
        <source>NLC Characters</source>
        <translation>印刷標準字体</translation>
    </message>
    <message>
        <source>Traditional Names Characters</source>
        <translation>人名用旧字体</translation>
    </message>
    <message>
        <source>Lower Case Numbers</source>
        <translation>オールドスタイル数字</translation>
    </message>
    <message>
        <source>Upper Case Numbers</source>
        <translation>ライニング数字</translation>
    </message>
    <message>
        <source>Proportional Text</source>
        <translation>プロポーショナル文字</translation>
    </message>
    <message>
        <source>Monospaced Text</source>
        <translation>等幅文字</translation>
    </message>
    <message>
        <source>Half-Width Text</source>
        <translation>半角文字</translation>
    </message>
    <message>
        <source>Third-Width Text</source>
        <translation>三分幅の文字</translation>
    </message>
    <message>
        <source>Quarter-Width Text</source>
        <translation>四分幅の文字</translation>
    </message>
    <message>
        <source>Alternate Proportional Text</source>
        <translation>プロポーショナル文字 (代替)</translation>
    </message>
    <message>
        <source>Alternate Half-Width Text</source>
        <translation>半角文字 (代替)</translation>
    </message>
    <message>
        <source>No Transliteration</source>
        <translation>翻字なし</translation>
    </message>
    <message>
        <source>Hanja to Hangul</source>
        <translation>漢字をハングルに</translation>
    </message>
    <message>
        <source>Hiragana to Katakana</source>
        <translation>ひらがなをカタカナに</translation>
    </message>
    <message>
        <source>Katakana to Hiragana</source>
        <translation>カタカナをひらがなに</translation>
    </message>
    <message>
        <source>Kana to Romanization</source>
        <translation>かなをローマ字に</translation>
    </message>
    <message>
        <source>Romanization to Hiragana</source>
        <translation>ローマ字をひらがなに</translation>
    </message>
    <message>
        <source>Romanization to Katakana</source>
        <translation>ローマ字をカタカナに</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 1</source>
        <translation>漢字をハングルに 1</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 2</source>
        <translation>漢字をハングルに 2</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 3</source>
        <translation>漢字をハングルに 3</translation>
    </message>
    <message>
        <source>No Annotation</source>
        <translation>修飾なし</translation>
    </message>
    <message>
        <source>Box Annotation</source>
        <translation>四角囲み</translation>
    </message>
    <message>
        <source>Rounded Box Annotation</source>
        <translation>角丸四角囲み</translation>
    </message>
    <message>
        <source>Circle Annotation</source>
        <translation>丸囲み</translation>
    </message>
    <message>
        <source>Inverted Circle Annotation</source>
        <translation>黒丸囲み</translation>
    </message>
    <message>
        <source>Parenthesis Annotation</source>
        <translation>括弧囲み</translation>
    </message>
    <message>
        <source>Period Annotation</source>
        <translation>ピリオド付き</translation>
    </message>
    <message>
        <source>Roman Numeral Annotation</source>
        <translation>ローマ数字</translation>
    </message>
    <message>
        <source>Diamond Annotation</source>
        <translation>ひし形囲み</translation>
    </message>
    <message>
        <source>Inverted Box Annotation</source>
        <translation>黒四角囲み</translation>
    </message>
    <message>
        <source>Inverted Rounded Box Annotation</source>
        <translation>黒角丸四角囲み</translation>
    </message>
    <message>
        <source>Full-Width Kana</source>
        <translation>全角かな</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>プロポーショナルかな</translation>
    </message>
    <message>
        <source>Full-Width Ideographs</source>
        <translation>全角漢字</translation>
    </message>
    <message>
        <source>Proportional Ideographs</source>
        <translation>プロポーショナル漢字</translation>
    </message>
    <message>
        <source>Half-Width Ideographs</source>
        <translation>半角漢字</translation>
    </message>
    <message>
        <source>Canonical Composition</source>
        <translation>正準合成</translation>
    </message>
    <message>
        <source>Compatibility Composition</source>
        <translation>互換合成</translation>
    </message>
    <message>
        <source>Transcoding Composition</source>
        <translation>変換用合成</translation>
    </message>
    <message>
        <source>No CJK Symbol Alternatives</source>
        <translation>CJK 記号の代替字形なし</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 1</source>
        <translation>CJK 記号の代替字形 1</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 2</source>
        <translation>CJK 記号の代替字形 2</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 3</source>
        <translation>CJK 記号の代替字形 3</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 4</source>
        <translation>CJK 記号の代替字形 4</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 5</source>
        <translation>CJK 記号の代替字形 5</translation>
    </message>
    <message>
        <source>No Ideographic Alternatives</source>
        <translation>漢字の代替字形なし</translation>
    </message>
    <message>
        <source>Ideographic Alternative 1</source>
        <translation>漢字の代替字形 1</translation>
    </message>
    <message>
        <source>Ideographic Alternative 2</source>
        <translation>漢字の代替字形 2</translation>
    </message>
    <message>
        <source>Ideographic Alternative 3</source>
        <translation>漢字の代替字形 3</translation>
    </message>
    <message>
        <source>Ideographic Alternative 4</source>
        <translation>漢字の代替字形 4</translation>
    </message>
    <message>
        <source>Ideographic Alternative 5</source>
        <translation>漢字の代替字形 5</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>中央揃え</translation>
    </message>
    <message>
        <source>Horizontal Baseline</source>
        <translation>横組みのベースライン</translation>
    </message>
    <message>
        <source>Case-Sensitive Spacing</source>
        <translation>大文字用字間</translation>
    </message>
    <message>
        <source>Alternate Horizontal Kana</source>
        <translation>横組み用かな (代替)</translation>
    </message>
    <message>
        <source>Alternate Vertical Kana</source>
        <translation>縦組み用かな (代替)</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>前後関係に依存する字形</translation>
    </message>
    <message>
        <source>Swash Alternates</source>
        <translation>スワッシュ字形</translation>
    </message>
    <message>
        <source>Contextual Swash Alternates</source>
        <translation>前後関係に依存するスワッシュ字形</translation>
    </message>
    <message>
        <source>Default Lower Case</source>
        <translation>標準の小文字</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>プチキャピタル</translation>
    </message>
    <message>
        <source>Default Upper Case</source>
        <translation>標準の大文字</translation>
    </message>
    <message>
        <source>Half-Width CJK Roman</source>
        <translation>半角 CJK 欧文</translation>
    </message>
    <message>
        <source>Proportional CJK Roman</source>
        <translation>プロポーショナル CJK 欧文</translation>
    </message>
    <message>
        <source>Default CJK Roman</source>
        <translation>標準の CJK 欧文</translation>
    </message>
    <message>
        <source>Full-Width CJK Roman</source>
        <translation>全角 CJK 欧文</translation>
    </message>
    <message>
        <source>No Stylistic Alternatives</source>
        <translation>デザインのバリエーションなし</translation>
    </message>
    <message>
        <source>Stylistic Alternative %1</source>
        <translation>デザインのバリエーション %1</translation>
    </message>
</context>
<context>
    <name>FeatureTagNames</name>
    <message>
        <source>Access All Alternates</source>
        <translation>すべての代替字形</translation>
    </message>
    <message>
        <source>Above-Base Forms</source>
        <translation>基底文字の上の字形</translation>
    </message>
    <message>
        <source>Above-Base Mark Positioning</source>
        <translation>基底文字の上のマーク配置</translation>
    </message>
    <message>
        <source>Above-Base Substitutions</source>
        <translation>基底文字の上の置換</translation>
    </message>
    <message>
        <source>Alternative Fractions</source>
        <translation>代替分数</translation>
    </message>
    <message>
        <source>Akhand</source>
        <translation>アカンド</translation>
    </message>
    <message>
        <source>Below-Base Forms</source>
        <translation>基底文字の下の字形</translation>
    </message>
    <message>
        <source>Below-Base Mark Positioning</source>
        <translation>基底文字の下のマーク配置</translation>
    </message>
    <message>
        <source>Below-Base Substitutions</source>
        <translation>基底文字の下の置換</translation>
    </message>
    <message>
        <source>Petite Capitals From Capitals</source>
        <translation>大文字をプチキャピタルに</translation>
    </message>
    <message>
        <source>Small Capitals From Capitals</source>
        <translation>大文字をスモールキャピタルに</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>前後関係に依存する字形</translation>
    </message>
    <message>
        <source>Case-Sensitive Forms</source>
        <translation>大文字用字形</translation>
    </message>
    <message>
        <source>Glyph Composition / Decomposition</source>
        <translation>グリフの合成/分解</translation>
    </message>
    <message>
        <source>Conjunct Form After Ro</source>
        <translation>Ro の後の結合字形</translation>
    </message>
    <message>
        <source>Contextual Half-Width Spacing</source>
        <translation>前後関係に依存する半角字間</translation>
    </message>
    <message>
        <source>Conjunct Forms</source>
        <translation>結合字形</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>前後関係に依存する合字</translation>
    </message>
    <message>
        <source>Centered CJK Punctuation</source>
        <translation>中央揃えの CJK 約物</translation>
    </message>
    <message>
        <source>Capital Spacing</source>
        <translation>大文字の字間</translation>
    </message>
    <message>
        <source>Contextual Swash</source>
        <translation>前後関係に依存するスワッシュ字形</translation>
    </message>
    <message>
        <source>Cursive Positioning</source>
        <translation>筆記体の位置</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>距離</translation>
    </message>
    <message>
        <source>Discretionary Ligatures</source>
        <translation>任意の合字</translation>
    </message>
    <message>
        <source>Denominators</source>
        <translation>分母</translation>
    </message>
    <message>
        <source>Dotless Forms</source>
        <translation>ドットなし字形</translation>
    </message>
    <message>
        <source>Expert Forms</source>
        <translation>エキスパート字形</translation>
    </message>
    <message>
        <source>Final Glyph on Line Alternates</source>
        <translation>行末用の代替字形</translation>
    </message>
    <message>
        <source>Terminal Forms #2</source>
        <translation>語末形 2</translation>
    </message>
    <message>
        <source>Terminal Forms #3</source>
        <translation>語末形 3</translation>
    </message>
    <message>
        <source>Terminal Forms</source>
        <translation>語末形</translation>
    </message>
    <message>
        <source>Flattened Accent Forms</source>
        <translation>平らなアクセント字形</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>分数</translation>
    </message>
    <message>
        <source>Full Widths</source>
        <translation>全角字形</translation>
    </message>
    <message>
        <source>Half Forms</source>
        <translation>半字形</translation>
    </message>
    <message>
        <source>Halant Forms</source>
        <translation>ハラント字形</translation>
    </message>
    <message>
        <source>Alternate Half Widths</source>
        <translation>半角字形 (代替)</translation>
    </message>
    <message>
        <source>Historical Forms</source>
        <translation>歴史的な字形</translation>
    </message>
    <message>
        <source>Horizontal Kana Alternates</source>
        <translation>横組み用かな</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>歴史的な合字</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>ハングル</translation>
    </message>
    <message>
        <source>Hojo Kanji Forms</source>
        <translation>JIS 補助漢字字形</translation>
    </message>
    <message>
        <source>Half Widths</source>
        <translation>半角字形</translation>
    </message>
    <message>
        <source>Initial Forms</source>
        <translation>語頭形</translation>
    </message>
    <message>
        <source>Isolated Forms</source>
        <translation>独立形</translation>
    </message>
    <message>
        <source>Italics</source>
        <translation>イタリック</translation>
    </message>
    <message>
        <source>Justification Alternates</source>
        <translation>行揃え用の代替字形</translation>
    </message>
    <message>
        <source>JIS2004 Forms</source>
        <translation>JIS2004 字形</translation>
    </message>
    <message>
        <source>JIS78 Forms</source>
        <translation>JIS78 字形</translation>
    </message>
    <message>
        <source>JIS83 Forms</source>
        <translation>JIS83 字形</translation>
    </message>
    <message>
        <source>JIS90 Forms</source>
        <translation>JIS90 字形</translation>
    </message>
    <message>
        <source>Kerning</source>
        <translation>カーニング</translation>
    </message>
    <message>
        <source>Left Bounds</source>
        <translation>左の境界</translation>
    </message>
    <message>
        <source>Standard Ligatures</source>
        <translation>標準の合字</translation>
    </message>
    <message>
        <source>Leading Jamo Forms</source>
        <translation>字母の初声形</translation>
    </message>
    <message>
        <source>Lining Figures</source>
        <translation>ライニング数字</translation>
    </message>
    <message>
        <source>Localized Forms</source>
        <translation>各言語固有の字形</translation>
    </message>
    <message>
        <source>Left-to-Right Alternates</source>
        <translation>左から右への代替字形</translation>
    </message>
    <message>
        <source>Left-to-Right Mirrored Forms</source>
        <translation>左から右への鏡像字形</translation>
    </message>
    <message>
        <source>Mark Positioning</source>
        <translation>マークの位置</translation>
    </message>
    <message>
        <source>Medial Forms #2</source>
        <translation>語中形 2</translation>
    </message>
    <message>
        <source>Medial Forms</source>
        <translation>語中形</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>数学用ギリシャ文字</translation>
    </message>
    <message>
        <source>Mark to Mark Positioning</source>
        <translation>マーク同士の位置</translation>
    </message>
    <message>
        <source>Mark Positioning via Substitution</source>
        <translation>置換によるマークの位置</translation>
    </message>
    <message>
        <source>Alternate Annotation Forms</source>
        <translation>修飾字形</translation>
    </message>
    <message>
        <source>NLC Kanji Forms</source>
        <translation>印刷標準字体</translation>
    </message>
    <message>
        <source>Nukta Forms</source>
        <translation>ヌクタ字形</translation>
    </message>
    <message>
        <source>Numerators</source>
        <translation>分子</translation>
    </message>
    <message>
        <source>Oldstyle Figures</source>
        <translation>オールドスタイル数字</translation>
    </message>
    <message>
        <source>Optical Bounds</source>
        <translation>オプティカル境界</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>序数</translation>
    </message>
    <message>
        <source>Ornaments</source>
        <translation>オーナメント</translation>
    </message>
    <message>
        <source>Proportional Alternate Widths</source>
        <translation>プロポーショナルメトリクス</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>プチキャピタル</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>プロポーショナルかな</translation>
    </message>
    <message>
        <source>Proportional Figures</source>
        <translation>プロポーショナル数字</translation>
    </message>
    <message>
        <source>Pre-Base Forms</source>
        <translation>基底文字の前の字形</translation>
    </message>
    <message>
        <source>Pre-Base Substitutions</source>
        <translation>基底文字の前の置換</translation>
    </message>
    <message>
        <source>Post-Base Forms</source>
        <translation>基底文字の後の字形</translation>
    </message>
    <message>
        <source>Post-Base Substitutions</source>
        <translation>基底文字の後の置換</translation>
    </message>
    <message>
        <source>Proportional Widths</source>
        <translation>プロポーショナル字形</translation>
    </message>
    <message>
        <source>Quarter Widths</source>
        <translation>四分字形</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Required Contextual Alternates</source>
        <translation>前後関係に依存する必須の字形</translation>
    </message>
    <message>
        <source>Rakar Forms</source>
        <translation>ラカール字形</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>必須の合字</translation>
    </message>
    <message>
        <source>Reph Form</source>
        <translation>レフ字形</translation>
    </message>
    <message>
        <source>Right Bounds</source>
        <translation>右の境界</translation>
    </message>
    <message>
        <source>Right-to-Left Alternates</source>
        <translation>右から左への代替字形</translation>
    </message>
    <message>
        <source>Right-to-Left Mirrored Forms</source>
        <translation>右から左への鏡像字形</translation>
    </message>
    <message>
        <source>Ruby Notation Forms</source>
        <translation>ルビ用字形</translation>
    </message>
    <message>
        <source>Required Variation Alternates</source>
        <translation>バリエーションに必須の字形</translation>
    </message>
    <message>
        <source>Stylistic Alternates</source>
        <translation>デザインのバリエーション</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>科学用下付き文字</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>オプティカルサイズ</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>スモールキャピタル</translation>
    </message>
    <message>
        <source>Simplified Forms</source>
        <translation>簡体字</translation>
    </message>
    <message>
        <source>Math Script-Style Alternates</source>
        <translation>数学の添字用字形</translation>
    </message>
    <message>
        <source>Stretching Glyph Decomposition</source>
        <translation>伸長グリフの分解</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>下付き文字</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>上付き文字</translation>
    </message>
    <message>
        <source>Swash</source>
        <translation>スワッシュ字形</translation>
    </message>
    <message>
        <source>Titling</source>
        <translation>タイトル用字形</translation>
    </message>
    <message>
        <source>Trailing Jamo Forms</source>
        <translation>字母の終声形</translation>
    </message>
    <message>
        <source>Traditional Name Forms</source>
        <translation>人名用旧字体</translation>
    </message>
    <message>
        <source>Tabular Figures</source>
        <translation>等幅数字</translation>
    </message>
    <message>
        <source>Traditional Forms</source>
        <translation>旧字体</translation>
    </message>
    <message>
        <source>Third Widths</source>
        <translation>三分字形</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>ユニケース</translation>
    </message>
    <message>
        <source>Alternate Vertical Metrics</source>
        <translation>縦組みメトリクス</translation>
    </message>
    <message>
        <source>Vattu Variants</source>
        <translation>ヴァットゥ字形</translation>
    </message>
    <message>
        <source>Vertical Contextual Half-Width Spacing</source>
        <translation>前後関係に依存する縦組み半角字間</translation>
    </message>
    <message>
        <source>Vertical Alternates</source>
        <translation>縦組み用字形</translation>
    </message>
    <message>
        <source>Alternate Vertical Half Metrics</source>
        <translation>縦組み半角メトリクス</translation>
    </message>
    <message>
        <source>Vowel Jamo Forms</source>
        <translation>字母の中声形</translation>
    </message>
    <message>
        <source>Vertical Kana Alternates</source>
        <translation>縦組み用かな</translation>
    </message>
    <message>
        <source>Vertical Kerning</source>
        <translation>縦組みカーニング</translation>
    </message>
    <message>
        <source>Proportional Alternate Vertical Metrics</source>
        <translation>縦組みプロポーショナルメトリクス</translation>
    </message>
    <message>
        <source>Vertical Alternates and Rotation</source>
        <translation>縦組み用字形と回転</translation>
    </message>
    <message>
        <source>Vertical Alternates for Rotation</source>
        <translation>回転用の縦組み字形</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>スラッシュ付きゼロ</translation>
    </message>
    <message>
        <source>Stylistic Set %1</source>
        <translation>デザインセット %1</translation>
    </message>
    <message>
        <source>Character Variant %1</source>
        <translation>文字バリエーション %1</translation>
    </message>
</context>
<context>
    <name>FeedDownload</name>
    <message>
        <source>cannot read the release feed: %1</source>
        <translation>リリースフィードを読み込めません: %1</translation>
    </message>
    <message>
        <source>the release server gives no feed: it answers with status %1</source>
        <translation>リリースサーバーからフィードを取得できません: ステータス %1</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is no https address</source>
        <translation>リリースフィードのアドレスが https アドレスではありません</translation>
    </message>
    <message>
        <source>the release feed&apos;s address has a name or password in it</source>
        <translation>リリースフィードのアドレスに名前またはパスワードが含まれています</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is not secure: it must begin with https</source>
        <translation>リリースフィードのアドレスが安全ではありません: https で始まる必要があります</translation>
    </message>
    <message>
        <source>the release server leads to an address that is not secure</source>
        <translation>リリースサーバーが安全でないアドレスに転送しています</translation>
    </message>
    <message>
        <source>the release server took too long to answer</source>
        <translation>リリースサーバーの応答に時間がかかりすぎました</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>リリースフィードが大きすぎます</translation>
    </message>
    <message>
        <source>the release server leads from one address to the next</source>
        <translation>リリースサーバーの転送が繰り返されています</translation>
    </message>
</context>
<context>
    <name>FeedUpdaterController</name>
    <message>
        <source>this build has no address of a release feed</source>
        <translation>このビルドにはリリースフィードのアドレスがありません</translation>
    </message>
    <message>
        <source>the running version is no number</source>
        <translation>実行中のバージョンが数字ではありません</translation>
    </message>
</context>
<context>
    <name>FilePath</name>
    <message>
        <source>&quot;%1&quot; is no file URL: %2</source>
        <translation>「%1」はファイル URL ではありません: %2</translation>
    </message>
    <message>
        <source>it does not begin with file:</source>
        <translation>file: で始まっていません</translation>
    </message>
    <message>
        <source>it names another host</source>
        <translation>別のホストを指しています</translation>
    </message>
    <message>
        <source>its path is not absolute</source>
        <translation>パスが絶対パスではありません</translation>
    </message>
    <message>
        <source>it has a query or a fragment</source>
        <translation>クエリーまたはフラグメントが含まれています</translation>
    </message>
    <message>
        <source>it has a broken percent escape</source>
        <translation>パーセントエスケープが壊れています</translation>
    </message>
    <message>
        <source>it contains a NUL</source>
        <translation>NUL が含まれています</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 は通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1 changed while it was read</source>
        <translation>%1 は読み込み中に変更されました</translation>
    </message>
    <message>
        <source>the copy %1 differs from its source</source>
        <translation>コピー %1 が元のファイルと一致しません</translation>
    </message>
</context>
<context>
    <name>FolderCommands</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>%1: 読み込めません</translation>
    </message>
    <message>
        <source>%1: has changed while in use</source>
        <translation>%1: 使用中に変更されました</translation>
    </message>
    <message>
        <source>has neither names nor a character map</source>
        <translation>名前も文字マップもありません</translation>
    </message>
    <message>
        <source>%1: has no face number %2</source>
        <translation>%1: 番号 %2 のフェイスはありません</translation>
    </message>
    <message>
        <source>%1: has no named instance number %2</source>
        <translation>%1: 番号 %2 の名前付きインスタンスはありません</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: ファイルがありません</translation>
    </message>
    <message>
        <source>%1: may not be read</source>
        <translation>%1: 読み込む権限がありません</translation>
    </message>
    <message>
        <source>%1: is a link that leads in a circle</source>
        <translation>%1: リンクが循環しています</translation>
    </message>
    <message>
        <source>%1: is not a regular file</source>
        <translation>%1: 通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: 開けません: %2</translation>
    </message>
    <message>
        <source>%1: is larger than any font</source>
        <translation>%1: フォントとしては大きすぎます</translation>
    </message>
    <message>
        <source>is a WOFF web font, which is not read</source>
        <translation>WOFF 形式の Web フォントには対応していません</translation>
    </message>
    <message>
        <source>is a WOFF2 web font, which is not read</source>
        <translation>WOFF2 形式の Web フォントには対応していません</translation>
    </message>
    <message>
        <source>is a Type 1 font, which is not read</source>
        <translation>Type 1 フォントには対応していません</translation>
    </message>
    <message>
        <source>is a BDF bitmap font, which is not read</source>
        <translation>BDF ビットマップフォントには対応していません</translation>
    </message>
    <message>
        <source>is a PCF bitmap font, which is not read</source>
        <translation>PCF ビットマップフォントには対応していません</translation>
    </message>
    <message>
        <source>is compressed, which is not read</source>
        <translation>圧縮されたファイルには対応していません</translation>
    </message>
    <message>
        <source>is not a font</source>
        <translation>フォントではありません</translation>
    </message>
    <message>
        <source>is a collection without faces</source>
        <translation>フェイスのないフォントコレクションです</translation>
    </message>
    <message>
        <source>is larger than any font suitcase</source>
        <translation>フォントスーツケースとしては大きすぎます</translation>
    </message>
    <message>
        <source>is a suitcase without outline fonts</source>
        <translation>アウトラインフォントのないスーツケースです</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>ends within its header</source>
        <translation>ヘッダーの途中で終わっています</translation>
    </message>
    <message>
        <source>holds a face that is not a font</source>
        <translation>フォントではないフェイスが含まれています</translation>
    </message>
    <message>
        <source>has a damaged table directory</source>
        <translation>テーブルディレクトリが破損しています</translation>
    </message>
    <message>
        <source>ends within its table directory</source>
        <translation>テーブルディレクトリの途中で終わっています</translation>
    </message>
    <message>
        <source>is shorter than its header says: %1 lies beyond the end</source>
        <extracomment>%1 is a table of the font, such as &quot;glyf&quot;.</extracomment>
        <translation>ヘッダーの情報よりファイルが短くなっています: %1 が末尾を越えています</translation>
    </message>
</context>
<context>
    <name>FontFiles</name>
    <message>
        <source>There is no such file.</source>
        <translation>このファイルはありません。</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>このファイルを読み込む権限がありません。</translation>
    </message>
    <message>
        <source>This file is too large to be a font.</source>
        <translation>このファイルは、フォントとしては大きすぎます。</translation>
    </message>
    <message>
        <source>This file holds no font that Lorva can show.</source>
        <translation>このファイルには、Lorva で表示できるフォントがありません。</translation>
    </message>
    <message>
        <source>This font is damaged and cannot be shown.</source>
        <translation>このフォントは破損しているため表示できません。</translation>
    </message>
    <message>
        <source>This file cannot be read from its disk.</source>
        <translation>このファイルをディスクから読み込めません。</translation>
    </message>
    <message>
        <source>This font has no name, so no program could offer it.</source>
        <translation>このフォントには名前がないため、どのアプリでも選べません。</translation>
    </message>
    <message>
        <source>Only files of this computer can be shown.</source>
        <translation>表示できるのは、このコンピューターのファイルだけです。</translation>
    </message>
    <message>
        <source>So many files cannot be shown at once.</source>
        <translation>ファイルが多すぎて、一度には表示できません。</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Some styles are active</source>
        <translation>一部のスタイルが有効</translation>
    </message>
    <message>
        <source>Active through the system</source>
        <translation>システムにより有効</translation>
    </message>
    <message>
        <source>Active, copied to the Fonts folder</source>
        <translation>有効 (フォントフォルダーにコピー済み)</translation>
    </message>
    <message>
        <source>Active, registered in place</source>
        <translation>有効 (元の場所で登録済み)</translation>
    </message>
    <message>
        <source>Another font has this file’s name in the Fonts folder</source>
        <translation>フォントフォルダーに同じファイル名の別のフォントがあります</translation>
    </message>
    <message>
        <source>Not Shown</source>
        <translation>表示できないファイル</translation>
    </message>
    <message>
        <source>Font Files</source>
        <translation>フォントファイル</translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n 個のフォント</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a folder or a device, not a font file.</source>
        <translation>これはフォルダーまたはデバイスで、フォントファイルではありません。</translation>
    </message>
</context>
<context>
    <name>FontInspector</name>
    <message>
        <source>License</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Embedding</source>
        <extracomment>Whether documents may embed the font.</extracomment>
        <translation>埋め込み</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Vendor</source>
        <extracomment>Whose web page it is.</extracomment>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>デザイナー</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A language, and the characters of it that the font lacks.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>対応</translation>
    </message>
    <message>
        <source>Languages with Missing Characters</source>
        <translation>文字が不足している言語</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Whether a family is switched on.</extracomment>
        <translation>無効</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Whether a family is switched on, and whether the system did it.</extracomment>
        <translation>有効</translation>
    </message>
    <message>
        <source>Active (System)</source>
        <translation>有効 (システム)</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>識別情報</translation>
    </message>
    <message>
        <source>Family Name</source>
        <translation>ファミリー名</translation>
    </message>
    <message>
        <source>Style Name</source>
        <translation>スタイル名</translation>
    </message>
    <message>
        <source>Full Name</source>
        <translation>フルネーム</translation>
    </message>
    <message>
        <source>PostScript Name</source>
        <translation>PostScript 名</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造元</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Whether the family is switched on.</extracomment>
        <translation>状態</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>The file of a font.</extracomment>
        <translation>場所</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The file format of a font.</extracomment>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Glyph Count</source>
        <translation>グリフ数</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Features of a font that belong to no group.</extracomment>
        <translation>その他</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作権</translation>
    </message>
</context>
<context>
    <name>FontInspectorService</name>
    <message>
        <source>Italic</source>
        <extracomment>Axes of variable fonts.</extracomment>
        <translation>イタリック</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>オプティカルサイズ</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>スラント</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>ウェイト</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>字幅</translation>
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
        <translation>OpenType (CFF)</translation>
    </message>
    <message>
        <source>OpenType (TrueType)</source>
        <translation>OpenType (TrueType)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>FontInstallationService</name>
    <message>
        <source>another program is switching fonts on or off</source>
        <translation>別のプログラムがフォントの有効/無効を切り替えています</translation>
    </message>
</context>
<context>
    <name>FontQuizPoster</name>
    <message>
        <source>en</source>
        <extracomment>The language of the translation, such as &quot;de&quot; or &quot;zh_CN&quot;: dates are written in it.</extracomment>
        <translation>ja</translation>
    </message>
    <message>
        <source>MMMM d, yyyy</source>
        <extracomment>How the poster of the quiz writes its date, as &quot;d. MMMM yyyy&quot; or &quot;yyyy年M月d日&quot;; English writes it with ordinals instead.</extracomment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A style of fonts, and how many fonts have it; spoken.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Fonts organized</source>
        <extracomment>A big number stands below it: so many fonts were organized.</extracomment>
        <translation>整理したフォント</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles on %1.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%1に、セリフ・サンセリフ・ディスプレイ・等幅・装飾の各スタイルへ、ひとつずつ手作業で整理しました。

どんなプロジェクトが来ても、もう準備は万端。さあ、すてきなものを作りましょう。</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles by %1 on %2.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%1 が %2に、セリフ・サンセリフ・ディスプレイ・等幅・装飾の各スタイルへ、ひとつずつ手作業で整理しました。

どんなプロジェクトが来ても、もう準備は万端。さあ、すてきなものを作りましょう。</translation>
    </message>
</context>
<context>
    <name>FontScanPhase</name>
    <message>
        <source>Finding fonts…</source>
        <translation>フォントを探しています…</translation>
    </message>
    <message numerus="yes">
        <source>Finding fonts… %1</source>
        <translation>
            <numerusform>フォントを探しています… %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 fonts</source>
        <translation>
            <numerusform>フォントをスキャンしています: %1/%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Identifying fonts… %1 of %2</source>
        <translation>
            <numerusform>フォントを識別しています… %1/%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>準備しています…</translation>
    </message>
</context>
<context>
    <name>FontsFolderEntries</name>
    <message>
        <source>the file named %1 in the Fonts folder is another font than %2</source>
        <translation>フォントフォルダーにある %1 という名前のファイルは、%2 とは別のフォントです</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>Usage:</source>
        <extracomment>before the ways in which a command is called, in its help</extracomment>
        <translation>使い方:</translation>
    </message>
</context>
<context>
    <name>HistoryReport</name>
    <message>
        <source>Activated %1</source>
        <translation>%1 を有効化</translation>
    </message>
    <message>
        <source>Tried to activate %1</source>
        <translation>%1 の有効化を試行</translation>
    </message>
    <message>
        <source>De-activated %1</source>
        <translation>%1 を無効化</translation>
    </message>
    <message>
        <source>Tried to de-activate %1</source>
        <translation>%1 の無効化を試行</translation>
    </message>
    <message>
        <source>Brought back %1</source>
        <translation>%1 を復元</translation>
    </message>
    <message>
        <source>Tried to bring back %1</source>
        <translation>%1 の復元を試行</translation>
    </message>
    <message>
        <source>Copied to the Fonts folder</source>
        <translation>フォントフォルダーにコピー</translation>
    </message>
    <message>
        <source>Registered in place</source>
        <translation>元の場所で登録</translation>
    </message>
    <message>
        <source>Copies to the Trash, registrations withdrawn</source>
        <translation>コピーをゴミ箱に移動、登録を解除</translation>
    </message>
    <message>
        <source>Moved to %1</source>
        <translation>%1 に移動</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>De-activation undone</source>
        <translation>無効化を取り消し</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln 個のファイル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln were there already</source>
        <translation>
            <numerusform>%Ln 個は既存</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <extracomment>Files.</extracomment>
        <translation>
            <numerusform>%Ln 個は失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left when it was stopped</source>
        <translation>
            <numerusform>%Ln 個は中止時に未処理</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>How fonts were switched on or off, and the numbers of their files.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Activation History</source>
        <translation>有効化の履歴</translation>
    </message>
    <message>
        <source>No font was switched on or off yet.</source>
        <translation>フォントの有効/無効を切り替えた履歴はまだありません。</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
</context>
<context>
    <name>JsonReader</name>
    <message>
        <source>unknown value</source>
        <translation>不明な値です</translation>
    </message>
    <message>
        <source>the integer is out of range</source>
        <translation>整数が範囲外です</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>キーが重複しています</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>文書が空です</translation>
    </message>
    <message>
        <source>invalid UTF-8</source>
        <translation>UTF-8 が不正です</translation>
    </message>
    <message>
        <source>control character in a string</source>
        <translation>文字列に制御文字があります</translation>
    </message>
    <message>
        <source>unclosed string</source>
        <translation>文字列が閉じられていません</translation>
    </message>
    <message>
        <source>broken escape in a string</source>
        <translation>文字列のエスケープが壊れています</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>文書が大きすぎます</translation>
    </message>
    <message>
        <source>malformed JSON</source>
        <translation>JSON の形式が不正です</translation>
    </message>
    <message>
        <source>the value was read already</source>
        <translation>この値は読み込み済みです</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>入れ子が深すぎます</translation>
    </message>
    <message>
        <source>expected a string</source>
        <translation>文字列が必要です</translation>
    </message>
    <message>
        <source>expected an integer</source>
        <translation>整数が必要です</translation>
    </message>
    <message>
        <source>expected a number</source>
        <translation>数値が必要です</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>true または false が必要です</translation>
    </message>
    <message>
        <source>broken base64</source>
        <translation>base64 が壊れています</translation>
    </message>
    <message>
        <source>expected an array</source>
        <translation>配列が必要です</translation>
    </message>
    <message>
        <source>expected an object</source>
        <translation>オブジェクトが必要です</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>A key that must be there, in a JSON document.</extracomment>
        <translation>ありません</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>何も読み込まれませんでした</translation>
    </message>
    <message>
        <source>text after the end</source>
        <translation>末尾の後にテキストがあります</translation>
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
        <translation>--window-size にはポイント単位の WIDTHxHEIGHT を指定します (例: 1720x920)</translation>
    </message>
    <message>
        <source>--view takes grid or list</source>
        <translation>--view には grid または list を指定します</translation>
    </message>
    <message>
        <source>--color takes white, black, custom or image</source>
        <translation>--color には white、black、custom、image のいずれかを指定します</translation>
    </message>
    <message>
        <source>--sheet takes activate, deactivate, history or settings</source>
        <translation>--sheet には activate、deactivate、history、settings のいずれかを指定します</translation>
    </message>
    <message>
        <source>--stage takes text, waterfall or comparison</source>
        <translation>--stage には text、waterfall、comparison のいずれかを指定します</translation>
    </message>
    <message>
        <source>--inspector takes features or info</source>
        <translation>--inspector には features または info を指定します</translation>
    </message>
    <message>
        <source>--quiz takes intro, playing or poster</source>
        <translation>--quiz には intro、playing、poster のいずれかを指定します</translation>
    </message>
    <message>
        <source>--welcome takes scene or card</source>
        <translation>--welcome には scene または card を指定します</translation>
    </message>
    <message>
        <source>--appearance takes light or dark</source>
        <translation>--appearance には light または dark を指定します</translation>
    </message>
    <message>
        <source>--source takes all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>--source には all、active、inactive、style:ID、collection:NAME、foundry:ID、discover のいずれかを指定します</translation>
    </message>
    <message>
        <source>--image takes one of: %1</source>
        <translation>--image には次のいずれかを指定します: %1</translation>
    </message>
    <message>
        <source>--weight takes a number from 100 to 900</source>
        <translation>--weight には 100 から 900 までの数値を指定します</translation>
    </message>
    <message>
        <source>--point-size takes a positive number of points</source>
        <translation>--point-size には正のポイント数を指定します</translation>
    </message>
    <message>
        <source>add the fonts of a folder for this start (repeatable)</source>
        <translation>今回の起動でフォルダー内のフォントを追加 (複数指定可)</translation>
    </message>
    <message>
        <source>start in all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>all、active、inactive、style:ID、collection:NAME、foundry:ID、discover のいずれかを開いて起動</translation>
    </message>
    <message>
        <source>start with this text in the search field</source>
        <translation>検索欄にこのテキストを入れて起動</translation>
    </message>
    <message>
        <source>start with this family selected</source>
        <translation>このファミリーを選択して起動</translation>
    </message>
    <message>
        <source>open this family in the detail view</source>
        <translation>このファミリーを詳細表示で開く</translation>
    </message>
    <message>
        <source>show it as text, waterfall or comparison there</source>
        <translation>そこで text、waterfall、comparison のいずれかで表示</translation>
    </message>
    <message>
        <source>show its features or info beside it</source>
        <translation>その横に features または info を表示</translation>
    </message>
    <message>
        <source>start in the font quiz: its intro, playing or its poster</source>
        <translation>フォントクイズを intro、playing、poster のいずれかで開いて起動</translation>
    </message>
    <message>
        <source>show the welcome, whether it was seen before or not</source>
        <translation>表示済みかどうかに関わらず、ようこそ画面を表示</translation>
    </message>
    <message>
        <source>do not show it</source>
        <translation>ようこそ画面を表示しない</translation>
    </message>
    <message>
        <source>start in this view</source>
        <translation>この表示で起動</translation>
    </message>
    <message>
        <source>start with specimens of this size, in points</source>
        <translation>組見本をこのサイズ (ポイント) にして起動</translation>
    </message>
    <message>
        <source>start with specimens of this weight, 100 to 900</source>
        <translation>組見本をこのウェイト (100 から 900) にして起動</translation>
    </message>
    <message>
        <source>start with white, black or custom colours, or an image</source>
        <translation>white、black、custom の色、または image で起動</translation>
    </message>
    <message>
        <source>start with this background image (--color image)</source>
        <translation>この背景画像で起動 (--color image)</translation>
    </message>
    <message>
        <source>start with this image as logo</source>
        <translation>この画像をロゴにして起動</translation>
    </message>
    <message>
        <source>start with this sample text</source>
        <translation>このサンプルテキストで起動</translation>
    </message>
    <message>
        <source>light or dark, whatever the desktop is</source>
        <translation>デスクトップの設定に関わらず light または dark</translation>
    </message>
    <message>
        <source>show the window off screen, write its picture as PNG, and quit</source>
        <translation>ウィンドウを画面外に表示し、その画像を PNG で保存して終了</translation>
    </message>
    <message>
        <source>size of that picture, in points (default 1720x920, of font files 1160x760)</source>
        <translation>その画像のサイズ (ポイント、デフォルトは 1720x920、フォントファイルでは 1160x760)</translation>
    </message>
    <message>
        <source>open activate, deactivate (for --select), history or settings for it</source>
        <translation>画像用に activate、deactivate (--select が対象)、history、settings のいずれかを開く</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>このヘルプを表示</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>不明な引数「%1」</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 には値が必要です</translation>
    </message>
    <message>
        <source>If Lorva runs already, its window comes to the front and takes the options over.</source>
        <translation>Lorva がすでに実行中の場合は、そのウィンドウを前面に出し、オプションを引き継ぎます。</translation>
    </message>
    <message>
        <source>QT_SCALE_FACTOR=2 makes the picture twice as dense. QT_LOGGING_RULES=&quot;lorva.*=true&quot; logs.</source>
        <translation>QT_SCALE_FACTOR=2 で画像の密度が 2 倍になります。QT_LOGGING_RULES=&quot;lorva.*=true&quot; でログを出力します。</translation>
    </message>
    <message>
        <source>LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events.</source>
        <translation>LORVA_TRACE=FILE で、起動にかかった時間の内訳を Chrome トレースイベントとして書き出します。</translation>
    </message>
    <message>
        <source>Usage: lorva [options] [FILE|FOLDER]...</source>
        <extracomment>Options begin with &quot;--&quot;, and words in capitals stand for what is typed after them; both, and the words that an option takes, stay as they are.</extracomment>
        <translation>使い方: lorva [オプション] [FILE|FOLDER]...</translation>
    </message>
    <message>
        <source>Shows every font of this computer as a live specimen; font files that are given, by path or as a file: address, in a window of their own.</source>
        <translation>このコンピューターのすべてのフォントを、実際の書体で組んで表示します。パスまたは file: アドレスで指定したフォントファイルは、専用のウィンドウに表示します。</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the words that an option takes.</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>LinkFolderRegistrar</name>
    <message>
        <source>The font cannot be registered: %1</source>
        <translation>フォントを登録できません: %1</translation>
    </message>
    <message>
        <source>The registration cannot be withdrawn: %1</source>
        <translation>登録を解除できません: %1</translation>
    </message>
    <message>
        <source>The font is registered already</source>
        <translation>フォントは登録済みです</translation>
    </message>
    <message>
        <source>The font is not registered</source>
        <translation>フォントは登録されていません</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>絶対パスではありません</translation>
    </message>
    <message>
        <source>something else has the name of its link</source>
        <translation>リンクと同じ名前のものがすでにあります</translation>
    </message>
</context>
<context>
    <name>LogoImage</name>
    <message>
        <source>The image could not be kept.</source>
        <translation>画像を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>Show Logo</source>
        <translation>ロゴを表示</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Of a logo, compared with the letters beside it.</extracomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Spacing</source>
        <extracomment>Between a logo and the letters beside it.</extracomment>
        <translation>間隔</translation>
    </message>
    <message>
        <source>The logo cannot be read</source>
        <translation>ロゴを読み込めません</translation>
    </message>
</context>
<context>
    <name>LogoTile</name>
    <message>
        <source>Logo</source>
        <translation>ロゴ</translation>
    </message>
    <message>
        <source>Choose another image</source>
        <translation>別の画像を選択</translation>
    </message>
    <message>
        <source>Drop an image here, or click to choose one.</source>
        <translation>画像をここにドロップするか、クリックして選択してください。</translation>
    </message>
</context>
<context>
    <name>LorvaAppModelFolders</name>
    <message>
        <source>%1 is no UTF-8 text and cannot be kept in the preferences</source>
        <translation>%1 は UTF-8 テキストではないため、設定に保存できません</translation>
    </message>
    <message>
        <source>there is no watched folder with the id %1</source>
        <translation>ID が %1 の監視フォルダーはありません</translation>
    </message>
</context>
<context>
    <name>OrganizationAlerts</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Delete Collection?</source>
        <translation>コレクションを削除しますか?</translation>
    </message>
    <message>
        <source>This removes the collection but keeps the fonts on your Mac.</source>
        <translation>コレクションは削除されますが、フォントはこのコンピューターに残ります。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Hide “%1”?</source>
        <translation>「%1」を非表示にしますか?</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>このファウンドリーをサイドバーに表示しないようにします。</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>非表示にする</translation>
    </message>
    <message>
        <source>This Change Is Not Possible</source>
        <translation>この変更はできません</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrganizationChanges</name>
    <message>
        <source>there is no collection with the id “%1”</source>
        <translation>ID が「%1」のコレクションはありません</translation>
    </message>
    <message>
        <source>there is a collection with the name “%1” already</source>
        <translation>「%1」という名前のコレクションがすでにあります</translation>
    </message>
    <message>
        <source>there is a collection with the id “%1” already</source>
        <translation>ID が「%1」のコレクションがすでにあります</translation>
    </message>
    <message>
        <source>there is no style category with the id “%1”</source>
        <translation>ID が「%1」のスタイルはありません</translation>
    </message>
    <message>
        <source>there is a style category with the name “%1” already</source>
        <translation>「%1」という名前のスタイルがすでにあります</translation>
    </message>
    <message>
        <source>there is a style category with the id “%1” already</source>
        <translation>ID が「%1」のスタイルがすでにあります</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>the style category “%1” cannot be renamed or deleted</source>
        <translation>スタイル「%1」は名前の変更も削除もできません</translation>
    </message>
</context>
<context>
    <name>OrganizationFile</name>
    <message>
        <source>the name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>format: expected &quot;%1&quot;</source>
        <translation>format: 「%1」が必要です</translation>
    </message>
    <message>
        <source>version: there is no such version</source>
        <translation>version: このようなバージョンはありません</translation>
    </message>
    <message>
        <source>the file is of version %1, which needs a newer Lorva</source>
        <translation>ファイルのバージョンは %1 で、より新しい Lorva が必要です</translation>
    </message>
    <message>
        <source>the organisation takes %1 bytes as a file, and no more than %2 can be imported; the logos in display settings may be too many</source>
        <translation>整理情報はファイルにすると %1 バイトになりますが、読み込めるのは %2 バイトまでです。表示設定のロゴが多すぎる可能性があります</translation>
    </message>
</context>
<context>
    <name>OrganizationStore</name>
    <message>
        <source>the preferences took no change</source>
        <translation>設定を変更できませんでした</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 文書</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG 画像</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 画像</translation>
    </message>
</context>
<context>
    <name>PaneTexts</name>
    <message>
        <source>Active</source>
        <extracomment>A heading: fonts that are switched on for every program.</extracomment>
        <translation>有効</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>A heading: fonts that are not switched on.</extracomment>
        <translation>無効</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A heading: a page that introduces type foundries.</extracomment>
        <translation>見つける</translation>
    </message>
    <message>
        <source>All Fonts</source>
        <translation>すべてのフォント</translation>
    </message>
    <message>
        <source>No Inactive Fonts</source>
        <translation>無効なフォントなし</translation>
    </message>
    <message>
        <source>Every font in your folders is switched on.</source>
        <translation>フォルダー内のフォントはすべて有効になっています。</translation>
    </message>
    <message>
        <source>Watch a folder to see the fonts in it without switching them on.</source>
        <translation>フォルダーを監視すると、中のフォントを有効にせずに見ることができます。</translation>
    </message>
    <message>
        <source>No Fonts Here</source>
        <translation>フォントなし</translation>
    </message>
    <message>
        <source>None of the families that belong here are on this computer.</source>
        <translation>ここに属するファミリーは、このコンピューターにありません。</translation>
    </message>
    <message>
        <source>An Empty Collection</source>
        <translation>空のコレクション</translation>
    </message>
    <message>
        <source>Drag fonts onto it in the sidebar, or choose it in a font’s menu.</source>
        <translation>サイドバーのコレクションにフォントをドラッグするか、フォントのメニューで選んでください。</translation>
    </message>
    <message>
        <source>No Active Fonts</source>
        <translation>有効なフォントなし</translation>
    </message>
    <message>
        <source>Fonts that every program can use appear here.</source>
        <translation>すべてのアプリで使えるフォントがここに表示されます。</translation>
    </message>
    <message>
        <source>No Fonts of This Style</source>
        <translation>このスタイルのフォントなし</translation>
    </message>
    <message>
        <source>Choose the style in a font’s menu, or drag fonts onto it in the sidebar.</source>
        <translation>フォントのメニューでスタイルを選ぶか、サイドバーのスタイルにフォントをドラッグしてください。</translation>
    </message>
    <message>
        <source>None of this foundry’s families are on this computer.</source>
        <translation>このファウンドリーのファミリーは、このコンピューターにありません。</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>フォントなし</translation>
    </message>
    <message>
        <source>Neither this system nor your folders hold a font that can be read.</source>
        <translation>このシステムにもフォルダーにも、読み込めるフォントがありません。</translation>
    </message>
    <message>
        <source>Scan Cancelled</source>
        <translation>スキャンをキャンセルしました</translation>
    </message>
    <message>
        <source>Press F5 to look for the fonts of this system and of your folders again.</source>
        <translation>F5 キーを押すと、システムとフォルダーのフォントをもう一度探します。</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>There is nothing to export</source>
        <translation>書き出すものがありません</translation>
    </message>
    <message>
        <source>The page is too large for a file</source>
        <translation>ページが大きすぎてファイルにできません</translation>
    </message>
    <message>
        <source>The page is too large for a PNG; a PDF or SVG can hold it</source>
        <translation>ページが大きすぎて PNG にできません。PDF または SVG なら可能です</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>画像をエンコードできません</translation>
    </message>
    <message>
        <source>the picture does not fit into memory</source>
        <translation>画像がメモリーに収まりません</translation>
    </message>
    <message>
        <source>%1: the name of a picture ends in .png, .svg or .pdf</source>
        <translation>%1: 画像の名前は .png、.svg、.pdf のいずれかで終わる必要があります</translation>
    </message>
    <message>
        <source>%1: refusing to write over a font file</source>
        <translation>%1: フォントファイルには上書きできません</translation>
    </message>
</context>
<context>
    <name>PreferenceDatabase</name>
    <message>
        <source>the file cannot be written</source>
        <translation>ファイルに書き込めません</translation>
    </message>
    <message>
        <source>another process is moving a damaged file</source>
        <translation>別のプロセスが破損したファイルを移動しています</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>データベースが破損しています</translation>
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
        <translation>組見本</translation>
    </message>
</context>
<context>
    <name>RecordsJson</name>
    <message>
        <source>%1 is no colour mode</source>
        <translation>%1 というカラーモードはありません</translation>
    </message>
</context>
<context>
    <name>ReleaseFeed</name>
    <message>
        <source>the release feed cannot be read: %1</source>
        <translation>リリースフィードを読み込めません: %1</translation>
    </message>
    <message>
        <source>version: expected numbers with dots between them</source>
        <translation>version: ドットで区切った数字が必要です</translation>
    </message>
    <message>
        <source>date: expected a day such as 2026-11-22</source>
        <translation>date: 2026-11-22 のような日付が必要です</translation>
    </message>
    <message>
        <source>page: expected an https address</source>
        <translation>page: https アドレスが必要です</translation>
    </message>
    <message>
        <source>the release feed is made for a newer Lorva: its format is %1, not %2</source>
        <translation>リリースフィードはより新しい Lorva 用です: 形式は %2 ではなく %1 です</translation>
    </message>
    <message>
        <source>the release feed is about another product</source>
        <translation>リリースフィードは別の製品のものです</translation>
    </message>
    <message>
        <source>the release feed&apos;s key is not 32 bytes in Base64</source>
        <translation>リリースフィードの鍵が Base64 の 32 バイトではありません</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>リリースフィードが大きすぎます</translation>
    </message>
    <message>
        <source>the release feed is not signed by the makers of Lorva</source>
        <translation>リリースフィードに Lorva の開発元の署名がありません</translation>
    </message>
</context>
<context>
    <name>Restoration</name>
    <message>
        <source>It is not in the Trash any more</source>
        <translation>ゴミ箱に残っていません</translation>
    </message>
    <message>
        <source>Another file has taken its place</source>
        <translation>別のファイルが同じ場所にあります</translation>
    </message>
</context>
<context>
    <name>RunLock</name>
    <message>
        <source>cannot lock %1: another process holds it</source>
        <translation>%1 をロックできません: 別のプロセスが保持しています</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 は通常のファイルではありません</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>the file&apos;s path is no UTF-8 text</source>
        <translation>ファイルのパスが UTF-8 テキストではありません</translation>
    </message>
</context>
<context>
    <name>SafeImage</name>
    <message>
        <source>The picture has too many pixels to be read</source>
        <translation>画像のピクセル数が多すぎて読み込めません</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read</source>
        <translation>画像が破損しているため読み込めません</translation>
    </message>
    <message>
        <source>This is no picture in a format that can be read (PNG, JPEG, GIF, WebP, BMP or SVG)</source>
        <translation>読み込める形式 (PNG、JPEG、GIF、WebP、BMP、SVG) の画像ではありません</translation>
    </message>
    <message>
        <source>Pictures in this format need an addition to the desktop’s toolkit that is not installed</source>
        <translation>この形式の画像に必要な、デスクトップツールキットの追加機能がインストールされていません</translation>
    </message>
    <message>
        <source>The file is too large to be read as a picture</source>
        <translation>ファイルが大きすぎて画像として読み込めません</translation>
    </message>
    <message>
        <source>no room for a picture</source>
        <translation>画像用の領域が足りません</translation>
    </message>
    <message>
        <source>The drawing is damaged and cannot be read</source>
        <translation>図形が破損しているため読み込めません</translation>
    </message>
    <message>
        <source>The drawing is too complicated to be shown</source>
        <translation>図形が複雑すぎて表示できません</translation>
    </message>
    <message>
        <source>no memory for the drawing</source>
        <translation>図形用のメモリーが足りません</translation>
    </message>
</context>
<context>
    <name>SampleTextPanel</name>
    <message>
        <source>Reset Look</source>
        <translation>表示をリセット</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>サンプルテキスト</translation>
    </message>
    <message>
        <source>Blank: a sentence for each script</source>
        <translation>空欄: 文字体系ごとの文を表示</translation>
    </message>
    <message>
        <source>Size, weight, colors, logo and text as they were at first</source>
        <translation>サイズ、ウェイト、色、ロゴ、テキストを最初の状態に戻します</translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Latin</source>
        <extracomment>Sample texts in this script.</extracomment>
        <translation>ラテン文字</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ文字</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>キリル文字</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア文字</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ文字</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>デーヴァナーガリー</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ文字</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>簡体字中国語</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁体字中国語</translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>“%1” is not there.</source>
        <translation>「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>「%1」はフォルダーではありません。</translation>
    </message>
    <message>
        <source>You do not have permission to look into “%1”.</source>
        <translation>「%1」の中を見る権限がありません。</translation>
    </message>
    <message>
        <source>“%1” has a name that is not valid text, so it cannot be remembered.</source>
        <translation>「%1」の名前は有効なテキストではないため、記憶できません。</translation>
    </message>
    <message>
        <source>“%1” could not be looked at.</source>
        <translation>「%1」の中を確認できませんでした。</translation>
    </message>
    <message>
        <source>Scanning fonts…</source>
        <translation>フォントをスキャンしています…</translation>
    </message>
    <message>
        <source>No new fonts added</source>
        <translation>新しいフォントはありません</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t find any new fonts in the selected location.</source>
        <translation>選択した場所に新しいフォントは見つかりませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>Added %1 fonts</source>
        <translation>
            <numerusform>%1 個のフォントを追加しました</numerusform>
        </translation>
    </message>
    <message>
        <source>You can find them in your library.</source>
        <translation>ライブラリで確認できます。</translation>
    </message>
    <message>
        <source>Choose one or more folders of font files to include in your library.</source>
        <translation>ライブラリに加えるフォントファイルのフォルダーを選んでください (複数選択可)。</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
    <message numerus="yes">
        <source>%1 more folders could not be added.</source>
        <translation>
            <numerusform>ほか %1 個のフォルダーを追加できませんでした。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SidebarActions</name>
    <message>
        <source>New Collection</source>
        <translation>新規コレクション</translation>
    </message>
</context>
<context>
    <name>SidebarTree</name>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Styles</source>
        <extracomment>The style categories of fonts: Serif, Script and so on.</extracomment>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Foundries</source>
        <translation>ファウンドリー</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>コレクション</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>ファウンドリー</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>コレクション</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Every font there is, in the sidebar.</extracomment>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Fonts that are switched on for every program, in the sidebar.</extracomment>
        <translation>有効</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Fonts that are not switched on, in the sidebar.</extracomment>
        <translation>無効</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A page that introduces type foundries, in the sidebar.</extracomment>
        <translation>見つける</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>カタログ</translation>
    </message>
    <message>
        <source>Organize</source>
        <extracomment>Opens the quiz in which fonts are put into styles, in the sidebar.</extracomment>
        <translation>整理</translation>
    </message>
</context>
<context>
    <name>StoredGroupings</name>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
</context>
<context>
    <name>StyleActivations</name>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>So many styles, at the end of a list of their names.</extracomment>
        <translation>
            <numerusform>ほか %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleCategories</name>
    <message>
        <source>Serif</source>
        <translation>セリフ</translation>
    </message>
    <message>
        <source>Sans-Serif</source>
        <translation>サンセリフ</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>A style of fonts: those for large sizes.</extracomment>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Mono</source>
        <extracomment>A style of fonts: those whose letters are all of one width.</extracomment>
        <translation>等幅</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>A style of fonts: those that look like handwriting.</extracomment>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>Decorative</source>
        <extracomment>A style of fonts.</extracomment>
        <translation>装飾</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>cannot empty %1: %2</source>
        <translation>%1 を空にできません: %2</translation>
    </message>
    <message>
        <source>cannot empty the trace %1: %2</source>
        <extracomment>The trace says where the program spent its time.</extracomment>
        <translation>トレース %1 を空にできません: %2</translation>
    </message>
    <message>
        <source>cannot find %1: %2</source>
        <translation>%1 が見つかりません: %2</translation>
    </message>
    <message>
        <source>cannot lock %1: %2</source>
        <translation>%1 をロックできません: %2</translation>
    </message>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>%1 を確認できません: %2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>%1 を作成できません: %2</translation>
    </message>
    <message>
        <source>cannot move %1: %2</source>
        <translation>%1 を移動できません: %2</translation>
    </message>
    <message>
        <source>cannot move to the Trash %1: %2</source>
        <translation>%1 をゴミ箱に移動できません: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>cannot remove %1: %2</source>
        <translation>%1 を削除できません: %2</translation>
    </message>
    <message>
        <source>cannot take from the Trash %1: %2</source>
        <translation>%1 をゴミ箱から戻せません: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>%1 の中に書き込めません: %2</translation>
    </message>
    <message>
        <source>cannot write the trace %1: %2</source>
        <translation>トレース %1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>Trace</name>
    <message>
        <source>cannot write the trace %1: not a regular file</source>
        <translation>トレース %1 に書き込めません: 通常のファイルではありません</translation>
    </message>
</context>
<context>
    <name>UndoableDeactivation</name>
    <message>
        <source>De-activate %1</source>
        <translation>%1 の無効化</translation>
    </message>
</context>
<context>
    <name>UpdateAlerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Details: %1.</source>
        <translation>詳細: %1。</translation>
    </message>
    <message>
        <source>Lorva Couldn’t Check for Updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>The server that announces new versions can’t be reached. Check your internet connection, then try again.</source>
        <translation>新しいバージョンを知らせるサーバーに接続できません。インターネット接続を確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The server that announces new versions took too long to answer. Try again in a while.</source>
        <translation>新しいバージョンを知らせるサーバーの応答に時間がかかりすぎました。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The server that announces new versions has none to announce right now. Try again in a while.</source>
        <translation>新しいバージョンを知らせるサーバーには、今お知らせするものがありません。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection to the server that announces new versions is not secure, so nothing was read from it. If you are on a public network, try again on another one.</source>
        <translation>新しいバージョンを知らせるサーバーへの接続が安全ではないため、何も読み込みませんでした。公共のネットワークを使っている場合は、別のネットワークでもう一度お試しください。</translation>
    </message>
    <message>
        <source>The answer does not come from the makers of Lorva, so it was not believed. Try again on another network.</source>
        <translation>応答が Lorva の開発元からのものではないため、信頼しませんでした。別のネットワークでもう一度お試しください。</translation>
    </message>
    <message>
        <source>New versions are announced in a way that this version is too old to understand. Look for a newer one where you got Lorva.</source>
        <translation>新しいバージョンのお知らせが、お使いのバージョンでは読み取れない形式になっています。Lorva の入手元で新しいバージョンを探してください。</translation>
    </message>
    <message>
        <source>The server announces another program. Look for a newer version where you got Lorva.</source>
        <translation>サーバーが別のプログラムについて知らせています。Lorva の入手元で新しいバージョンを探してください。</translation>
    </message>
    <message>
        <source>The answer can’t be understood. Some networks answer in the server’s place until you sign in: open a web page, then try again.</source>
        <translation>応答を読み取れません。サインインするまで、サーバーの代わりに応答するネットワークもあります。Web ページを開いてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Version %1 was released on %2. You have version %3.</source>
        <translation>バージョン %1 が %2に公開されました。お使いのバージョンは %3 です。</translation>
    </message>
    <message>
        <source>Lorva %1 Is Available</source>
        <translation>Lorva %1 が公開されています</translation>
    </message>
    <message>
        <source>Open Release Page</source>
        <translation>リリースページを開く</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>You’re Up to Date</source>
        <translation>最新です</translation>
    </message>
    <message>
        <source>There is no newer version than yours, Lorva %1.</source>
        <translation>お使いの Lorva %1 より新しいバージョンはありません。</translation>
    </message>
    <message>
        <source>Updates Come with Your System</source>
        <translation>アップデートはシステムから届きます</translation>
    </message>
    <message>
        <source>This copy of Lorva does not look for new versions by itself: your system’s software updates bring new versions.</source>
        <translation>この Lorva は自分では新しいバージョンを確認しません。新しいバージョンは、システムのソフトウェアアップデートで届きます。</translation>
    </message>
    <message>
        <source>This copy of Lorva was not told properly where new versions are announced. Your system’s software updates, or the place where you got Lorva, bring new versions.</source>
        <translation>この Lorva には、新しいバージョンのお知らせ先が正しく設定されていません。新しいバージョンは、システムのソフトウェアアップデートまたは Lorva の入手元から入手できます。</translation>
    </message>
</context>
<context>
    <name>WatchedFolderStore</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 は通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1 cannot be made: a file has that name</source>
        <translation>%1 を作成できません: 同じ名前のファイルがあります</translation>
    </message>
</context>
<context>
    <name>WindowPicture</name>
    <message>
        <source>the picture could not be encoded</source>
        <translation>画像をエンコードできませんでした</translation>
    </message>
</context>
<context>
    <name>Withdrawal</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>%1 lies in a Fonts folder, where fonts are active</source>
        <translation>%1 は、フォントが有効になるフォントフォルダーの中にあります</translation>
    </message>
</context>
<context>
    <name>lorva</name>
    <message>
        <source>no display to open a window on; start it in a desktop session, or make a picture with --screenshot FILE</source>
        <translation>ウィンドウを開くディスプレイがありません。デスクトップセッションで起動するか、--screenshot FILE で画像を作成してください</translation>
    </message>
    <message>
        <source>%1; see lorva --help</source>
        <translation>%1 (lorva --help を参照)</translation>
    </message>
</context>
<context>
    <name>lorva::AxisRow</name>
    <message>
        <source>%1, value</source>
        <extracomment>The value of an axis of a variable font, such as Weight; spoken.</extracomment>
        <translation>%1、値</translation>
    </message>
</context>
<context>
    <name>lorva::BarDisplayControls</name>
    <message>
        <source>Logo</source>
        <translation>ロゴ</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>A logo is shown.</source>
        <translation>ロゴが表示されています。</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>カスタムカラー</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserCollectionView</name>
    <message>
        <source>Fonts</source>
        <translation>フォント</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserEmptyStateView</name>
    <message>
        <source>Watch Folder…</source>
        <translation>フォルダーを監視…</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>検索結果なし</translation>
    </message>
    <message>
        <source>No fonts match “%1”.</source>
        <translation>「%1」に一致するフォントはありません。</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserTopBar</name>
    <message>
        <source>Size and Weight</source>
        <translation>サイズとウェイト</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>サンプルテキスト</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>How the fonts are shown, as a noun; spoken.</extracomment>
        <translation>表示</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>リスト</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterCellsView</name>
    <message>
        <source>Characters</source>
        <translation>文字</translation>
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
        <translation>文字またはグリフ</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>グリフ</translation>
    </message>
    <message numerus="yes">
        <source>%1 found</source>
        <extracomment>Characters or glyphs.</extracomment>
        <translation>
            <numerusform>%1 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 glyphs</source>
        <translation>
            <numerusform>%1 グリフ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>No Glyphs Found</source>
        <translation>グリフが見つかりません</translation>
    </message>
    <message>
        <source>No Characters Found</source>
        <translation>文字が見つかりません</translation>
    </message>
    <message>
        <source>This face has no glyphs.</source>
        <translation>このフェイスにはグリフがありません。</translation>
    </message>
    <message>
        <source>This face has no characters.</source>
        <translation>このフェイスには文字がありません。</translation>
    </message>
    <message>
        <source>Copy Character</source>
        <translation>文字をコピー</translation>
    </message>
    <message>
        <source>Copy Code Point</source>
        <translation>コードポイントをコピー</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>名前をコピー</translation>
    </message>
    <message>
        <source>Copy Glyph Name</source>
        <translation>グリフ名をコピー</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>トレイに追加</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>%1 をコピーしました</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterPopoverViewController</name>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>このグリフに対応する文字はありません。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The kind of a character, and the block that it belongs to.</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Code Point</source>
        <translation>コードポイント</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>グリフ</translation>
    </message>
    <message>
        <source>Glyph Name</source>
        <translation>グリフ名</translation>
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
        <translation>コピー</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>トレイに追加</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterTrayView</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Tray: %1</source>
        <extracomment>Characters that were collected, to be copied together.</extracomment>
        <translation>トレイ: %1</translation>
    </message>
</context>
<context>
    <name>lorva::ColorChooser</name>
    <message>
        <source>Color Code</source>
        <translation>カラーコード</translation>
    </message>
</context>
<context>
    <name>lorva::ColorModeChips</name>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>カスタムカラー</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>背景画像</translation>
    </message>
</context>
<context>
    <name>lorva::ComparisonView</name>
    <message>
        <source>Add Family…</source>
        <translation>ファミリーを追加…</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Beside</source>
        <extracomment>How the compared families are arranged: beside each other.</extracomment>
        <translation>並べる</translation>
    </message>
    <message>
        <source>Overlaid</source>
        <extracomment>How the compared families are arranged: one over the other.</extracomment>
        <translation>重ねる</translation>
    </message>
    <message>
        <source>Match</source>
        <extracomment>What the compared families have in common: their size or their x-height; spoken.</extracomment>
        <translation>そろえる</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>同じサイズ</translation>
    </message>
    <message>
        <source>Same x-Height</source>
        <translation>同じ x ハイト</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 を取り除く</translation>
    </message>
    <message>
        <source>Add Family</source>
        <translation>ファミリーを追加</translation>
    </message>
</context>
<context>
    <name>lorva::DetailPreviewView</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>lorva::DetailTopBar</name>
    <message>
        <source>Text</source>
        <extracomment>Shows the family as one text that can be edited.</extracomment>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <extracomment>Shows the same text in ever smaller sizes.</extracomment>
        <translation>ウォーターフォール</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Shows several families together.</extracomment>
        <translation>比較</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>前のファミリー</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>次のファミリー</translation>
    </message>
    <message>
        <source>Size, Weight, Letter Spacing</source>
        <translation>サイズ、ウェイト、字間</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Search Characters</source>
        <translation>文字を検索</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverFoundryItem</name>
    <message>
        <source>Visit %1</source>
        <translation>%1 の Web サイトを開く</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverLinkButton</name>
    <message>
        <source>Visit</source>
        <extracomment>Opens the web page of a foundry.</extracomment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open Website</source>
        <translation>Web サイトを開く</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverViewController</name>
    <message>
        <source>Discover</source>
        <translation>見つける</translation>
    </message>
    <message>
        <source>Type Foundries</source>
        <translation>ファウンドリー</translation>
    </message>
</context>
<context>
    <name>lorva::FamilyPicker</name>
    <message>
        <source>Families</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>No Families</source>
        <translation>ファミリーなし</translation>
    </message>
    <message>
        <source>Search Families</source>
        <translation>ファミリーを検索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The group of a font&apos;s feature, and what the feature does; spoken.</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureTip</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A feature of a font, and its tag; spoken.</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>lorva::FontBrowserViewController</name>
    <message>
        <source>, </source>
        <extracomment>Between what is said of a family&apos;s card; spoken.</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>lorva::FontCardContentView</name>
    <message numerus="yes">
        <source>%Ln styles</source>
        <extracomment>The fonts of a family, such as Bold. English says &quot;1 styles&quot;, too.</extracomment>
        <translation>
            <numerusform>%Ln スタイル</numerusform>
        </translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesBar</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <translation>ウォーターフォール</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesFooter</name>
    <message>
        <source>Files That Failed…</source>
        <translation>失敗したファイル…</translation>
    </message>
    <message>
        <source>Show in Lorva</source>
        <translation>Lorva で表示</translation>
    </message>
    <message>
        <source>Activate All…</source>
        <translation>すべて有効にする…</translation>
    </message>
    <message>
        <source>De-activate…</source>
        <translation>無効にする…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>残りのスタイルを有効にする…</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>有効にする…</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesList</name>
    <message>
        <source>Fonts in the Files</source>
        <translation>ファイル内のフォント</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between what is said of a font in the list; spoken.</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesWindow</name>
    <message>
        <source>Reading Files</source>
        <translation>ファイルを読み込み中</translation>
    </message>
    <message>
        <source>The fonts will be here in a moment.</source>
        <translation>まもなくフォントが表示されます。</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>フォントなし</translation>
    </message>
    <message>
        <source>None of these files could be opened.</source>
        <translation>どのファイルも開けませんでした。</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>lorva::FontInspectorViewController</name>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>Features</source>
        <extracomment>The OpenType features of a font.</extracomment>
        <translation>機能</translation>
    </message>
    <message>
        <source>Info</source>
        <extracomment>Facts about a font.</extracomment>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>lorva::FontInstallSheetController</name>
    <message>
        <source>Choose how to activate this font family in macOS. Both methods make it available in every app on your Mac.</source>
        <translation>このフォントファミリーを有効にする方法を選んでください。どちらの方法でも、このコンピューターのすべてのアプリで使えるようになります。</translation>
    </message>
    <message>
        <source>Copy to Fonts Folder</source>
        <extracomment>A way to activate fonts.</extracomment>
        <translation>フォントフォルダーにコピー</translation>
    </message>
    <message>
        <source>Copies the font files into your user Fonts folder. Works even if the originals move or go offline.</source>
        <translation>フォントファイルを自分のフォントフォルダーにコピーします。元のファイルが移動したりオフラインになったりしても使えます。</translation>
    </message>
    <message>
        <source>Register in Place</source>
        <extracomment>A way to activate fonts: their files stay where they are.</extracomment>
        <translation>元の場所で登録</translation>
    </message>
    <message>
        <source>Activates the font from its current location, but deactivates if the source moves.</source>
        <translation>フォントを今の場所のまま有効にします。元のファイルが移動すると無効になります。</translation>
    </message>
    <message>
        <source>Remember this choice (change later in Settings)</source>
        <translation>この選択を記憶する (後で設定から変更できます)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>lorva::FontPreviewNSView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>「%1」を読み込めませんでした。代わりにシステムフォントで表示しています。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCardView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>「%1」を読み込めませんでした。代わりにシステムフォントで表示しています。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCategoryView</name>
    <message numerus="yes">
        <source>%1, key %2, %3 fonts</source>
        <extracomment>A style of fonts, the key that chooses it, and how many fonts have it; spoken.</extracomment>
        <translation>
            <numerusform>%1、キー %2、%3 個のフォント</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCompletionPosterView</name>
    <message>
        <source>Save as Picture…</source>
        <translation>画像として保存…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Save as Picture</source>
        <translation>画像として保存</translation>
    </message>
    <message>
        <source>Organized Fonts</source>
        <translation>整理したフォント</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizIntroView</name>
    <message>
        <source>Every font is already categorized.</source>
        <translation>すべてのフォントがすでに分類されています。</translation>
    </message>
    <message>
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. Don&apos;t worry, you can change the style for a font later.</source>
        <translation>フォントひとつひとつのスタイルを選んでください。選んだスタイルのフォルダーに表示されます。スタイルは後からでも変更できます。</translation>
    </message>
    <message numerus="yes">
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</source>
        <extracomment>The number of forms goes by %2.</extracomment>
        <translation>
            <numerusform>フォントひとつひとつのスタイルを選んでください。選んだスタイルのフォルダーに表示されます。%1 個は分類済みですが、%2 個はあなたの目で選ぶ必要があります。スタイルは後からでも変更できます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Begins the quiz.</extracomment>
        <translation>始める</translation>
    </message>
    <message>
        <source>Let&apos;s organize your fonts</source>
        <translation>フォントを整理しましょう</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizStageView</name>
    <message>
        <source>Card %1 of %2. Press 1 to 6 to choose its style, Space to skip it, Backspace to take the last choice back.</source>
        <translation>カード %1/%2。1 から 6 のキーでスタイルを選択、スペースキーでスキップ、Backspace キーで直前の選択を取り消します。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The card that is shown, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Space skips a card. Backspace takes the last one back.</source>
        <translation>スペースキーでカードをスキップ、Backspace キーで直前のカードに戻ります。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizViewController</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Font Quiz</source>
        <translation>フォントクイズ</translation>
    </message>
    <message>
        <source>“%1” could not be put into %2: %3</source>
        <translation>「%1」を%2に入れられませんでした: %3</translation>
    </message>
    <message>
        <source>The last choice could not be taken back: %1</source>
        <translation>直前の選択を取り消せませんでした: %1</translation>
    </message>
</context>
<context>
    <name>lorva::FontsSettingsTab</name>
    <message>
        <source>Watch Folder</source>
        <translation>フォルダーを監視</translation>
    </message>
    <message>
        <source>Remove Folder</source>
        <translation>フォルダーを取り除く</translation>
    </message>
    <message>
        <source>When activating fonts:</source>
        <translation>フォントを有効にするとき:</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>毎回確認する</translation>
    </message>
    <message>
        <source>Always copy to Fonts folder</source>
        <translation>常にフォントフォルダーにコピーする</translation>
    </message>
    <message>
        <source>Always register in place</source>
        <translation>常に元の場所で登録する</translation>
    </message>
    <message>
        <source>Watched Folders</source>
        <translation>監視フォルダー</translation>
    </message>
    <message>
        <source>Lorva scans these folders for font files and includes them in your library without installing them on your Mac.</source>
        <translation>これらのフォルダーからフォントファイルをスキャンし、コンピューターにインストールせずにライブラリに加えます。</translation>
    </message>
    <message>
        <source>Activating Fonts</source>
        <translation>フォントの有効化</translation>
    </message>
    <message>
        <source>Copying duplicates font files into your user Fonts folder. Registering activates fonts from their current location, but they deactivate if the source moves.</source>
        <translation>コピーすると、フォントファイルが自分のフォントフォルダーに複製されます。登録すると、フォントは今の場所のまま有効になりますが、元のファイルが移動すると無効になります。</translation>
    </message>
</context>
<context>
    <name>lorva::HueBar</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 度</translation>
    </message>
</context>
<context>
    <name>lorva::ImageIntake</name>
    <message>
        <source>“%1” is not there any more</source>
        <translation>「%1」はもうありません</translation>
    </message>
    <message>
        <source>“%1” may not be read</source>
        <translation>「%1」を読み込む権限がありません</translation>
    </message>
    <message>
        <source>“%1” is no file</source>
        <translation>「%1」はファイルではありません</translation>
    </message>
    <message>
        <source>“%1” is too large</source>
        <translation>「%1」は大きすぎます</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>「%1」を読み込めませんでした</translation>
    </message>
    <message>
        <source>Choose an Image</source>
        <translation>画像を選択</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>What was dropped is no picture</source>
        <translation>ドロップされたものは画像ではありません</translation>
    </message>
</context>
<context>
    <name>lorva::ImageThumbnail</name>
    <message>
        <source>Delete removes it.</source>
        <translation>Delete キーで取り除きます。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
</context>
<context>
    <name>lorva::IndexingStatus</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>A headline, and the sentence below it; spoken.</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>lorva::InfoRowView</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>More</source>
        <translation>もっと見る</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>ブラウザーで開く</translation>
    </message>
</context>
<context>
    <name>lorva::InfoValueText</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>lorva::InlineEditHandler</name>
    <message>
        <source>Sample text</source>
        <translation>サンプルテキスト</translation>
    </message>
</context>
<context>
    <name>lorva::InspectorFeaturesView</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset Features and Axes</source>
        <translation>機能と軸をリセット</translation>
    </message>
    <message>
        <source>Axes</source>
        <extracomment>The variation axes of a font, such as Weight.</extracomment>
        <translation>軸</translation>
    </message>
    <message>
        <source>No OpenType Features</source>
        <translation>OpenType 機能なし</translation>
    </message>
    <message>
        <source>This font doesn&apos;t expose any OpenType features.</source>
        <translation>このフォントには OpenType 機能がありません。</translation>
    </message>
</context>
<context>
    <name>lorva::InstanceButton</name>
    <message>
        <source>Custom</source>
        <extracomment>Settings of a variable font that are none of its named instances.</extracomment>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Instance: %1</source>
        <translation>インスタンス: %1</translation>
    </message>
    <message>
        <source>Instance</source>
        <extracomment>A named setting of a variable font, such as Condensed Bold.</extracomment>
        <translation>インスタンス</translation>
    </message>
</context>
<context>
    <name>lorva::LineField</name>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaAppModel</name>
    <message>
        <source>New Collection</source>
        <translation>新規コレクション</translation>
    </message>
    <message>
        <source>Rename Collection</source>
        <translation>コレクション名の変更</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>コレクションの削除</translation>
    </message>
    <message>
        <source>Add to Collection</source>
        <translation>コレクションへの追加</translation>
    </message>
    <message>
        <source>Remove from Collection</source>
        <translation>コレクションからの除外</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>スタイルの変更</translation>
    </message>
    <message>
        <source>New Style</source>
        <translation>新規スタイル</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>スタイル名の変更</translation>
    </message>
    <message>
        <source>Delete Style</source>
        <translation>スタイルの削除</translation>
    </message>
    <message>
        <source>Change Foundry</source>
        <translation>ファウンドリーの変更</translation>
    </message>
    <message>
        <source>Rename Foundry</source>
        <translation>ファウンドリー名の変更</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>ファウンドリーの非表示</translation>
    </message>
    <message>
        <source>Show Foundry</source>
        <translation>ファウンドリーの表示</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaApplicationDelegate</name>
    <message>
        <source>All Fonts</source>
        <translation>すべてのフォント</translation>
    </message>
    <message>
        <source>Lorva is a better way to browse, test, and manage your fonts. Organize them into collections, test logo images next to text, and turn fonts on or off as needed.</source>
        <translation>Lorva は、フォントをもっと気持ちよく眺め、試し、管理するためのアプリです。コレクションに整理し、ロゴ画像を文字と並べて確かめ、必要なときだけフォントを有効にできます。</translation>
    </message>
    <message>
        <source>Made for people who can never have enough fonts.</source>
        <translation>フォントはいくつあっても足りない、という人のために。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaRootSplitViewController</name>
    <message>
        <source>Organize Fonts</source>
        <translation>フォントを整理</translation>
    </message>
    <message>
        <source>Export Specimen</source>
        <translation>組見本を書き出す</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaSettingsViewModel</name>
    <message>
        <source>This folder is not watched any more.</source>
        <translation>このフォルダーはすでに監視されていません。</translation>
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
        <translation>Lorva について</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Organize Fonts…</source>
        <translation>フォントを整理…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>新規コレクション</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>Scan Folders Again</source>
        <translation>フォルダーを再スキャン</translation>
    </message>
    <message>
        <source>Export Specimen…</source>
        <translation>組見本を書き出す…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>%1 is what was done last, such as &quot;New Collection&quot;.</extracomment>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>CSS としてコピー</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Files That Failed…</source>
        <translation>失敗したファイル…</translation>
    </message>
    <message>
        <source>Activation History…</source>
        <translation>有効化の履歴…</translation>
    </message>
    <message>
        <source>F&amp;onts</source>
        <extracomment>The titles of the menus, each with the letter that opens it.</extracomment>
        <translation>フォント(&amp;O)</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>有効にする…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>残りのスタイルを有効にする…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>無効にする</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>全画面表示にする</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Larger Specimens</source>
        <translation>組見本を大きく</translation>
    </message>
    <message>
        <source>Smaller Specimens</source>
        <translation>組見本を小さく</translation>
    </message>
    <message>
        <source>Standard Specimen Size</source>
        <translation>標準の組見本サイズ</translation>
    </message>
    <message>
        <source>Back to All Cards</source>
        <translation>カード一覧に戻る</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>次のファミリー</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>前のファミリー</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>テキストを表示</translation>
    </message>
    <message>
        <source>Show Waterfall</source>
        <translation>ウォーターフォールを表示</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>全画面表示を終了</translation>
    </message>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>%n 個のフォントを有効にする…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>%n 個のフォントを無効にする</numerusform>
        </translation>
    </message>
    <message>
        <source>Lorva</source>
        <translation>Lorva</translation>
    </message>
    <message>
        <source>Version %1

Browse, test and organise all the fonts of this computer.</source>
        <translation>バージョン %1

このコンピューターのすべてのフォントを眺め、試し、整理します。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>lorva::OnboardingOverlay</name>
    <message>
        <source>Welcome to Lorva</source>
        <translation>Lorva へようこそ</translation>
    </message>
    <message>
        <source>Letters of your fonts fall. Press any key to go on.</source>
        <translation>フォントの文字が降ってきます。何かキーを押すと次に進みます。</translation>
    </message>
</context>
<context>
    <name>lorva::PanelLabel</name>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1。</translation>
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
        <translation>コレクション名を変更…</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>コレクションを削除</translation>
    </message>
    <message>
        <source>Hide from Sidebar</source>
        <translation>サイドバーに表示しない</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>新規コレクション</translation>
    </message>
    <message>
        <source>Activate Fonts…</source>
        <translation>フォントを有効にする…</translation>
    </message>
    <message>
        <source>De-activate Fonts</source>
        <translation>フォントを無効にする</translation>
    </message>
    <message>
        <source>Rename Foundry…</source>
        <translation>ファウンドリー名を変更…</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>ファウンドリーを非表示にする</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>このファウンドリーをサイドバーに表示しないようにします。</translation>
    </message>
    <message>
        <source>Hidden Foundries</source>
        <translation>非表示のファウンドリー</translation>
    </message>
    <message>
        <source>Create an empty collection.</source>
        <translation>空のコレクションを作成します。</translation>
    </message>
</context>
<context>
    <name>lorva::ReportSheet</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>lorva::SaturationField</name>
    <message>
        <source>Saturation and Brightness</source>
        <translation>彩度と明度</translation>
    </message>
    <message>
        <source>Saturation %1 %, brightness %2 %</source>
        <translation>彩度 %1 %、明度 %2 %</translation>
    </message>
</context>
<context>
    <name>lorva::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarFooter</name>
    <message>
        <source>Add Folder…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %Ln fonts</source>
        <extracomment>A row of the sidebar, and how many fonts it leads to; spoken.</extracomment>
        <translation>
            <numerusform>%1、%Ln 個のフォント</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::SidebarOutlineView</name>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarRowCellView</name>
    <message>
        <source>Name</source>
        <extracomment>Of a collection or foundry that is being renamed.</extracomment>
        <translation>名前</translation>
    </message>
</context>
<context>
    <name>lorva::SpecimenSlider</name>
    <message>
        <source>Size</source>
        <extracomment>Of the letters.</extracomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Weight</source>
        <extracomment>How heavy letters are, from Thin to Black.</extracomment>
        <translation>ウェイト</translation>
    </message>
    <message>
        <source>Letter Spacing</source>
        <translation>字間</translation>
    </message>
    <message>
        <source>Specimen size</source>
        <translation>組見本のサイズ</translation>
    </message>
    <message>
        <source>Specimen weight</source>
        <translation>組見本のウェイト</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>プレビューのサイズ</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>字間</translation>
    </message>
    <message>
        <source>%1 points</source>
        <extracomment>The size of letters; spoken.</extracomment>
        <translation>%1 ポイント</translation>
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
        <translation>有効にする…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <extracomment>A small button that switches one style of a family off; &quot;Active&quot; says that it is on.</extracomment>
        <translation>無効にする</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>De-activate %1</source>
        <translation>%1 を無効にする</translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation>%1 を有効にする</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowView</name>
    <message>
        <source>Regular</source>
        <extracomment>A style without a name of its own, as fonts call it.</extracomment>
        <translation>レギュラー</translation>
    </message>
    <message>
        <source>“%1” could not be loaded.</source>
        <translation>「%1」を読み込めませんでした。</translation>
    </message>
    <message>
        <source>In one file with %1: they are activated and de-activated together.</source>
        <translation>%1 と同じファイルにあるため、まとめて有効または無効になります。</translation>
    </message>
    <message>
        <source>Shown in the preview.</source>
        <translation>プレビューに表示されています。</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are the styles that are in the same file as this one.</extracomment>
        <translation>同じファイル: %1</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>A style that the system has switched on, which the user cannot change.</extracomment>
        <translation>システム</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowsView</name>
    <message>
        <source>Styles</source>
        <translation>スタイル</translation>
    </message>
</context>
<context>
    <name>lorva::UpdateCommands</name>
    <message>
        <source>Looking for a newer release…</source>
        <translation>新しいリリースを確認しています…</translation>
    </message>
</context>
<context>
    <name>lorva::VariantBar</name>
    <message>
        <source>Variant</source>
        <extracomment>One of the widths or optical sizes of a family.</extracomment>
        <translation>バリエーション</translation>
    </message>
    <message>
        <source>More Variants</source>
        <translation>その他のバリエーション</translation>
    </message>
    <message numerus="yes">
        <source>%n More</source>
        <extracomment>So many variants of a family that have no room beside the others.</extracomment>
        <translation>
            <numerusform>ほか %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderDelegate</name>
    <message>
        <source>No fonts</source>
        <translation>フォントなし</translation>
    </message>
    <message numerus="yes">
        <source>%1 fonts</source>
        <translation>
            <numerusform>%1 個のフォント</numerusform>
        </translation>
    </message>
    <message>
        <source>Not there</source>
        <extracomment>A folder that is missing.</extracomment>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A folder, and how many fonts are in it; spoken.</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderList</name>
    <message>
        <source>Watched Folders</source>
        <translation>監視フォルダー</translation>
    </message>
    <message>
        <source>No folders yet. Drop folders of fonts here, or press +.</source>
        <translation>フォルダーはまだありません。フォントのフォルダーをここにドロップするか、「+」を押してください。</translation>
    </message>
</context>
<context>
    <name>lorva::WaterfallView</name>
    <message>
        <source>Waterfall</source>
        <translation>ウォーターフォール</translation>
    </message>
</context>
<context>
    <name>lorvactl</name>
    <message>
        <source>Makes fonts of watched folders, and font files, available to every program. One line for each file: &quot;copied&quot;, &quot;registered&quot; or, when a file of its name is there already, &quot;skipped&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too. Nothing is replaced.</source>
        <translation>監視フォルダーのフォントやフォントファイルを、すべてのアプリで使えるようにします。ファイルごとに 1 行で、「copied」、「registered」、または同名のファイルがすでにある場合は「skipped」、タブ、ファイルを表示します。「also」、タブ、ファミリーの行は、それらのファイルにそのファミリーのフェイスもあることを示します。何も置き換えません。</translation>
    </message>
    <message>
        <source>A word with a slash is a file, every other one a family; a lone - reads families from standard input, one per line.</source>
        <translation>スラッシュを含む語はファイル、それ以外はファミリーとみなします。- だけを指定すると、標準入力からファミリーを 1 行に 1 つずつ読み込みます。</translation>
    </message>
    <message>
        <source>copy the files into your Fonts folder: works even if the originals move or go offline</source>
        <translation>ファイルをフォントフォルダーにコピー。元のファイルが移動したりオフラインになったりしても使用可能</translation>
    </message>
    <message>
        <source>activate them where they are, for as long as they stay there</source>
        <translation>元の場所で有効化。ファイルがそこにある間だけ使用可能</translation>
    </message>
    <message>
        <source>(without --method, the one chosen as the default)</source>
        <translation>(--method がない場合は、デフォルトに選んだ方法)</translation>
    </message>
    <message>
        <source>the families of this collection; may be given more than once</source>
        <translation>このコレクションのファミリー (複数指定可)</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too; may be given more than once</source>
        <translation>DIR 以下のフォントも対象にする (複数指定可)</translation>
    </message>
    <message>
        <source>only tell what would be done</source>
        <translation>実行内容を表示するだけ</translation>
    </message>
    <message>
        <source>one JSON object instead of lines</source>
        <translation>行の代わりに 1 つの JSON オブジェクト</translation>
    </message>
    <message>
        <source>--method takes copy or register</source>
        <translation>--method には copy または register を指定します</translation>
    </message>
    <message>
        <source>activate needs --method copy or --method register, as no default is chosen</source>
        <translation>デフォルトが選ばれていないため、activate には --method copy または --method register が必要です</translation>
    </message>
    <message>
        <source>registered, but its link is missing, so that no program sees it; the next activation makes it again</source>
        <translation>登録されていますが、リンクがないためどのアプリからも見えません。次の有効化のときに作り直します</translation>
    </message>
    <message>
        <source>registered, but gone; its registration will be withdrawn</source>
        <translation>登録されていますが、ファイルがありません。登録は解除されます</translation>
    </message>
    <message>
        <source>active by a link that the books do not know; they will take it in</source>
        <translation>記録にないリンクで有効になっています。記録に取り込まれます</translation>
    </message>
    <message>
        <source>gone, and the books do not know its link, which will be removed</source>
        <translation>ファイルがなく、リンクも記録にありません。リンクは削除されます</translation>
    </message>
    <message>
        <source>a copy that has gone from the Fonts folder; the books will forget it</source>
        <translation>フォントフォルダーからなくなったコピーです。記録から消去されます</translation>
    </message>
    <message>
        <source>another program is switching fonts on or off now</source>
        <translation>別のプログラムが今フォントの有効/無効を切り替えています</translation>
    </message>
    <message>
        <source>a program ended while it switched fonts on or off; the next activation finishes its books</source>
        <translation>フォントの有効/無効の切り替え中にプログラムが終了しました。次の有効化のときに記録を完了します</translation>
    </message>
    <message>
        <source>not there now; its place in the list is kept</source>
        <translation>現在ありません。リスト内の位置は保持されます</translation>
    </message>
    <message>
        <source>on a volume where others&apos; changes are not noticed; the window looks when it becomes active</source>
        <translation>ほかからの変更が通知されないボリュームにあります。ウィンドウがアクティブになったときに確認します</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>監視中</translation>
    </message>
    <message>
        <source>lies in %1, which is watched too; each font counts once</source>
        <translation>同じく監視中の %1 の中にあります。どのフォントも 1 回だけ数えます</translation>
    </message>
    <message>
        <source>books and disk agree: %1 copied, %2 registered</source>
        <translation>記録とディスクは一致しています: コピー %1、登録 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</source>
        <translation>
            <numerusform>フォントフォルダーの外にある %n 個のフォントファイルが元の場所で登録されています。Flatpak や Snap などのサンドボックス内のアプリからは、コピーしたもの以外は見えません</numerusform>
        </translation>
    </message>
    <message>
        <source>--collection takes no empty name</source>
        <translation>--collection に空の名前は指定できません</translation>
    </message>
    <message>
        <source>%1; the file of that name is ./%2</source>
        <translation>%1。その名前のファイルは ./%2 で指定します</translation>
    </message>
    <message>
        <source>this machine has no family %1</source>
        <translation>このコンピューターにファミリー%1はありません</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>this is a folder; name the font files in it</source>
        <translation>これはフォルダーです。中のフォントファイルを指定してください</translation>
    </message>
    <message>
        <source>it holds no font that can be read</source>
        <translation>読み込めるフォントがありません</translation>
    </message>
    <message>
        <source>standard input names no family</source>
        <translation>標準入力にファミリーがありません</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>不明なオプション %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 に値は指定できません</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 には値が必要です</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3</source>
        <translation>%1 には %2 から %3 までの整数を指定します</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3</source>
        <translation>%1 には %2 から %3 までの数値を指定します</translation>
    </message>
    <message>
        <source>%1 takes UTF-8 text</source>
        <translation>%1 には UTF-8 テキストを指定します</translation>
    </message>
    <message>
        <source>Lists the collections, one line each: the name, a tab, the number of families; or the families of one, in their order. Changes are seen at once by a window that is open.</source>
        <translation>コレクションを 1 行に 1 つずつ、名前、タブ、ファミリー数の形で一覧表示します。コレクションを指定すると、そのファミリーを順番どおりに表示します。変更は、開いているウィンドウにすぐに反映されます。</translation>
    </message>
    <message>
        <source>puts families into a collection, at its end</source>
        <translation>ファミリーをコレクションの末尾に追加</translation>
    </message>
    <message>
        <source>takes families out of it</source>
        <translation>ファミリーをコレクションから除外</translation>
    </message>
    <message>
        <source>makes these families its members, in this order, and no others</source>
        <translation>メンバーをこれらのファミリーだけにし、順番もこのとおりにする</translation>
    </message>
    <message>
        <source>COLLECTION is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a collection; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>COLLECTION は、--json で表示される ID、または名前です。名前の大文字と小文字は、複数に当てはまる場合を除いて区別しません。FAMILY は、このコンピューターまたはコレクションにあるファミリーの名前です。- だけを指定すると、標準入力から名前を 1 行に 1 つずつ読み込みます。コマンドは、すべて実行されるか、まったく実行されないかのどちらかです。</translation>
    </message>
    <message>
        <source>JSON instead of lines</source>
        <translation>行の代わりに JSON</translation>
    </message>
    <message>
        <source>cannot write the output: %1</source>
        <translation>出力に書き込めません: %1</translation>
    </message>
    <message>
        <source>%1; see %2</source>
        <translation>%1 (%2 を参照)</translation>
    </message>
    <message>
        <source>Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder go to the Trash; your original files are not touched. Where Lorva does not know the original, the file stays unless --to says where it is to go. One line for each file: &quot;withdrawn&quot;, &quot;trashed&quot; or &quot;moved&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too.</source>
        <translation>フォントをどのアプリからも使えないようにします。登録は解除され、フォントフォルダーのコピーはゴミ箱に移動されます。元のファイルには影響しません。Lorva が元のファイルを知らない場合は、--to で移動先を指定しない限り、ファイルは残ります。ファイルごとに 1 行で、「withdrawn」、「trashed」または「moved」、タブ、ファイルを表示します。「also」、タブ、ファミリーの行は、それらのファイルにそのファミリーのフェイスもあることを示します。</translation>
    </message>
    <message>
        <source>move the copies there instead, under a free name; made if it is missing</source>
        <translation>代わりに、コピーを空いている名前でそこに移動。なければ作成</translation>
    </message>
    <message>
        <source>--to needs the name of a folder</source>
        <translation>--to にはフォルダーの名前が必要です</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install it, so the original is not known; --to DIR moves it</source>
        <translation>Lorva がインストールしたものではないため、元のファイルがわかりません。--to DIR で移動します</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 バイト</numerusform>
        </translation>
    </message>
    <message>
        <source>not there yet; the first change makes it</source>
        <translation>まだありません。最初の変更のときに作成されます</translation>
    </message>
    <message>
        <source>%1, preferences: %2</source>
        <translation>%1、設定項目: %2</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>読み込めません: %1</translation>
    </message>
    <message>
        <source>changes can be written</source>
        <translation>変更を書き込めます</translation>
    </message>
    <message>
        <source>changes cannot be written: %1</source>
        <translation>変更を書き込めません: %1</translation>
    </message>
    <message>
        <source>damaged preferences that were moved aside</source>
        <translation>移動して保管されている、破損した設定です</translation>
    </message>
    <message>
        <source>%1, kept because it could not be read when it was replaced</source>
        <translation>%1。置き換え時に読み込めなかったため保管されています</translation>
    </message>
    <message>
        <source>%1, unknown to this version, which leaves it alone</source>
        <translation>%1。このバージョンでは不明なため、そのままにします</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a file, and what is wrong with it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, cannot be read: %2; it counts as absent, and is kept when it is replaced</source>
        <translation>%1。読み込めません: %2。ないものとして扱い、置き換えるときに保管します</translation>
    </message>
    <message>
        <source>not there yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>of no use, and replaced by the next scan: %1</source>
        <translation>使えません。次のスキャンで置き換えます: %1</translation>
    </message>
    <message>
        <source>of no use, and replaced when the window has next read the fonts: %1</source>
        <translation>使えません。ウィンドウが次にフォントを読み込んだときに置き換えます: %1</translation>
    </message>
    <message>
        <source>all families that it names are in the last catalog: %1</source>
        <translation>整理情報のファミリーはすべて最新のカタログにあります: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 families that it names are not in the last catalog</source>
        <translation>
            <numerusform>整理情報の %1 個のファミリーのうち、%n 個は最新のカタログにありません</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how preferences, caches, active fonts and watched folders fare, and changes nothing. One line for each finding: &quot;ok&quot;, &quot;note&quot; or &quot;wrong&quot;, a tab, the file or preference, a tab, what there is to say. A note is worth knowing, but nothing is out of order: preferences of another version, damaged ones that were kept beside new ones, a cache of no use that will be written anew, books that the next activation brings into line with the disk.</source>
        <translation>設定、キャッシュ、有効なフォント、監視フォルダーの状態を調べて報告します。何も変更しません。結果ごとに 1 行で、「ok」、「note」または「wrong」、タブ、ファイルまたは設定項目、タブ、内容を表示します。「note」は、知っておく価値はあっても異常ではないものです。たとえば、別のバージョンの設定、新しい設定とともに保管されている破損した設定、書き直される使えないキャッシュ、次の有効化でディスクに合わせられる記録などです。</translation>
    </message>
    <message>
        <source>one JSON object instead</source>
        <translation>代わりに 1 つの JSON オブジェクト</translation>
    </message>
    <message>
        <source>Exit status: 0 all is well, 1 something is wrong.</source>
        <translation>終了ステータス: 0 問題なし、1 問題あり。</translation>
    </message>
    <message>
        <source>doctor takes no words</source>
        <translation>doctor に引数は指定できません</translation>
    </message>
    <message>
        <source>collection %1 deleted</source>
        <translation>コレクション%1を削除</translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>コレクション%1を %n 個のファミリーで作成</numerusform>
        </translation>
    </message>
    <message>
        <source>collection %1: %2</source>
        <translation>コレクション%1: %2</translation>
    </message>
    <message>
        <source>style %1 deleted</source>
        <translation>スタイル%1を削除</translation>
    </message>
    <message numerus="yes">
        <source>style %1 created with %n families</source>
        <translation>
            <numerusform>スタイル%1を %n 個のファミリーで作成</numerusform>
        </translation>
    </message>
    <message>
        <source>style %1: %2</source>
        <translation>スタイル%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n families joined</source>
        <translation>
            <numerusform>%n 個のファミリーを追加</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families left</source>
        <translation>
            <numerusform>%n 個のファミリーを除外</numerusform>
        </translation>
    </message>
    <message>
        <source>renamed from %1</source>
        <translation>%1から名前を変更</translation>
    </message>
    <message>
        <source>family %1: of the foundry that its fonts name</source>
        <translation>ファミリー%1: フォントに記載のファウンドリー</translation>
    </message>
    <message>
        <source>family %1: of no foundry</source>
        <translation>ファミリー%1: ファウンドリーなし</translation>
    </message>
    <message>
        <source>family %1: of the foundry %2</source>
        <translation>ファミリー%1: ファウンドリー%2</translation>
    </message>
    <message>
        <source>foundry %1: called %2</source>
        <translation>ファウンドリー%1: 表示名%2</translation>
    </message>
    <message>
        <source>foundry %1: called by its own name</source>
        <translation>ファウンドリー%1: 元の名前で表示</translation>
    </message>
    <message>
        <source>foundry %1: hidden</source>
        <translation>ファウンドリー%1: 非表示</translation>
    </message>
    <message>
        <source>foundry %1: shown again</source>
        <translation>ファウンドリー%1: 再表示</translation>
    </message>
    <message>
        <source>display settings of all fonts: taken in</source>
        <translation>すべてのフォントの表示設定: 取り込み</translation>
    </message>
    <message>
        <source>display settings of collection %1: taken in</source>
        <translation>コレクション%1の表示設定: 取り込み</translation>
    </message>
    <message>
        <source>Writes collections, styles, what you said about foundries, and display settings as one JSON document, for another machine or for version control. Equal organisations give equal bytes.</source>
        <translation>コレクション、スタイル、ファウンドリーの修正内容、表示設定を、1 つの JSON 文書に書き出します。別のコンピューターへの移行やバージョン管理に使えます。整理情報が同じなら、出力もバイト単位で同じになります。</translation>
    </message>
    <message>
        <source>the file to write, whole or not at all; standard output if not given</source>
        <translation>書き込むファイル。全体を書き込むか、まったく書き込まないかのどちらか。省略時は標準出力</translation>
    </message>
    <message>
        <source>export takes a file as -o FILE</source>
        <translation>export のファイルは -o FILE で指定します</translation>
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
        <translation>OpenType (CFF)</translation>
    </message>
    <message>
        <source>OpenType (TrueType)</source>
        <translation>OpenType (TrueType)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1: holds no face that can be read</source>
        <translation>%1: 読み込めるフェイスがありません</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 名</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>フルネーム</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造元</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>デザイナー</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作権</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>a title before a value, in a list of them</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>ウェイト</translation>
    </message>
    <message>
        <source>%1 (trait %2)</source>
        <translation>%1 (特性 %2)</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>イタリック</translation>
    </message>
    <message>
        <source>%1 (slant %2)</source>
        <translation>%1 (スラント %2)</translation>
    </message>
    <message>
        <source>default %1</source>
        <extracomment>the value of an axis of a variable font</extracomment>
        <translation>デフォルト %1</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>軸</translation>
    </message>
    <message>
        <source>linked with %1</source>
        <translation>%1 とリンク</translation>
    </message>
    <message>
        <source>left out of names</source>
        <translation>名前では省略</translation>
    </message>
    <message>
        <source>Axis value</source>
        <translation>軸の値</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>インスタンス</translation>
    </message>
    <message>
        <source>Name %1</source>
        <translation>名前 %1</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>ascender %1, descender %2, line gap %3</source>
        <translation>アセンダー %1、ディセンダー %2、ラインギャップ %3</translation>
    </message>
    <message>
        <source>position %1, thickness %2</source>
        <translation>位置 %1、太さ %2</translation>
    </message>
    <message>
        <source>size %1 × %2, offset %3, %4</source>
        <translation>サイズ %1 × %2、オフセット %3, %4</translation>
    </message>
    <message>
        <source>Units per em</source>
        <translation>em のユニット数</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>capitals %1, x %2</source>
        <translation>キャップハイト %1、x ハイト %2</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>OS/2 typo, used</source>
        <translation>OS/2 typo 使用</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下線</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <translation>取り消し線</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>下付き文字</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>上付き文字</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>境界</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>リビジョン</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>変更日時</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Embedding</source>
        <translation>埋め込み</translation>
    </message>
    <message>
        <source>Weight class</source>
        <translation>ウェイトクラス</translation>
    </message>
    <message>
        <source>Width class</source>
        <translation>字幅クラス</translation>
    </message>
    <message>
        <source>Average width</source>
        <translation>平均字幅</translation>
    </message>
    <message>
        <source>Widest advance</source>
        <translation>最大送り幅</translation>
    </message>
    <message>
        <source>Italic angle</source>
        <translation>イタリック角度</translation>
    </message>
    <message>
        <source>Monospaced</source>
        <translation>等幅</translation>
    </message>
    <message>
        <source>Smallest pixels</source>
        <translation>最小ピクセル数</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more ranges</source>
        <translation>
            <numerusform>ほか %1 範囲</numerusform>
        </translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>a feature of a font that is switched on unless somebody switches it off</extracomment>
        <translation>オン</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>at the end of a list of colours</extracomment>
        <translation>ほか %1 色</translation>
    </message>
    <message>
        <source>for light backgrounds</source>
        <translation>明るい背景用</translation>
    </message>
    <message>
        <source>for dark backgrounds</source>
        <translation>暗い背景用</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Colour tables</source>
        <translation>カラーテーブル</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Tables, bytes</source>
        <translation>テーブル (byte)</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>グリフ</translation>
    </message>
    <message>
        <source>Face %1</source>
        <extracomment>one of the fonts in a file; %1: its number</extracomment>
        <translation>フェイス %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>グリフ数</translation>
    </message>
    <message>
        <source>Family %1</source>
        <translation>ファミリー %1</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>文字体系</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Primary script</source>
        <translation>主な文字体系</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>別名</translation>
    </message>
    <message>
        <source>several families are called %1: %2</source>
        <translation>%1という名前のファミリーが複数あります: %2</translation>
    </message>
    <message>
        <source>there is no family %1</source>
        <translation>ファミリー%1はありません</translation>
    </message>
    <message>
        <source>Lists the watched folders, whose fonts belong to your library: the folder, a tab, the number of font files in it, or &quot;not there&quot;. Changes are seen at once by a window that is open; no file is touched. A command is done whole or not at all.</source>
        <translation>ライブラリに含まれるフォントの監視フォルダーを、フォルダー、タブ、フォントファイル数の形で一覧表示します。フォルダーがない場合、数の代わりに「not there」と表示します。変更は、開いているウィンドウにすぐに反映されます。ファイルには影響しません。コマンドは、すべて実行されるか、まったく実行されないかのどちらかです。</translation>
    </message>
    <message>
        <source>watches folders; one that is watched already stays as it is</source>
        <translation>フォルダーを監視。監視中のものはそのまま</translation>
    </message>
    <message>
        <source>ends that; what was activated from there stays active</source>
        <translation>監視を終了。そこから有効にしたものは有効なまま</translation>
    </message>
    <message>
        <source>ID is what --json shows.</source>
        <translation>ID は --json で表示されるものです。</translation>
    </message>
    <message>
        <source>one JSON array of folders instead of lines; add and remove show what they added or removed</source>
        <translation>行の代わりにフォルダーの 1 つの JSON 配列。add と remove では追加または除外したものを表示</translation>
    </message>
    <message>
        <source>list takes fewer words</source>
        <translation>list の引数が多すぎます</translation>
    </message>
    <message>
        <source>add takes no empty name</source>
        <translation>add に空の名前は指定できません</translation>
    </message>
    <message>
        <source>the path %1 is no UTF-8 text</source>
        <translation>パス %1 は UTF-8 テキストではありません</translation>
    </message>
    <message>
        <source>remove takes no empty name</source>
        <translation>remove に空の名前は指定できません</translation>
    </message>
    <message>
        <source>there is no watched folder %1</source>
        <translation>監視フォルダー%1はありません</translation>
    </message>
    <message>
        <source>unknown verb %1</source>
        <translation>不明なサブコマンド %1</translation>
    </message>
    <message>
        <source>%1 needs a folder</source>
        <translation>%1 にはフォルダーが必要です</translation>
    </message>
    <message>
        <source>Lists the foundries of this machine&apos;s fonts with two families at least, corrected by what you said, one line each: the name, a tab, the number of families; or the families of one. Changes are seen at once by a window that is open.</source>
        <translation>このコンピューターのフォントのうち、2 つ以上のファミリーがあるファウンドリーを、ユーザーによる修正を反映し、1 行に 1 つずつ、名前、タブ、ファミリー数の形で一覧表示します。ファウンドリーを指定すると、そのファミリーを表示します。変更は、開いているウィンドウにすぐに反映されます。</translation>
    </message>
    <message>
        <source>shows the foundry under another name, or under its own with --original</source>
        <translation>ファウンドリーを別の名前で表示。--original なら元の名前で表示</translation>
    </message>
    <message>
        <source>hides it, its families stay in the library; list --hidden shows such ones</source>
        <translation>ファウンドリーを非表示。ファミリーはライブラリに残る。非表示のものは list --hidden で表示</translation>
    </message>
    <message>
        <source>brings it back</source>
        <translation>ファウンドリーを再表示</translation>
    </message>
    <message>
        <source>moves families to it, whatever their fonts say</source>
        <translation>フォントの記載に関わらず、ファミリーをファウンドリーに移動</translation>
    </message>
    <message>
        <source>takes families out of it; they are of no foundry then</source>
        <translation>ファミリーをファウンドリーから除外 (ファウンドリーなしになる)</translation>
    </message>
    <message>
        <source>makes these families its own; others that their fonts count to it are of no foundry then</source>
        <translation>これらのファミリーだけをファウンドリーのものにする。フォントの記載で属していたほかのファミリーはファウンドリーなしになる</translation>
    </message>
    <message>
        <source>lets the fonts of families say it again</source>
        <translation>ファミリーのファウンドリーをフォントの記載に戻す</translation>
    </message>
    <message>
        <source>FOUNDRY is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of one that you sorted; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>FOUNDRY は、--json で表示される ID、または名前です。名前の大文字と小文字は、複数に当てはまる場合を除いて区別しません。FAMILY は、このコンピューターにある、または自分で分類したファミリーの名前です。- だけを指定すると、標準入力から名前を 1 行に 1 つずつ読み込みます。コマンドは、すべて実行されるか、まったく実行されないかのどちらかです。</translation>
    </message>
    <message>
        <source>a foundry comes from the fonts and cannot be created; rename one, or add families to one</source>
        <translation>ファウンドリーはフォントの情報に基づくため、作成できません。名前を変更するか、ファミリーを追加してください</translation>
    </message>
    <message>
        <source>rename needs either a new name or --original</source>
        <translation>rename には新しい名前か --original のどちらかが必要です</translation>
    </message>
    <message>
        <source>no fonts of this machine are of the foundry %1</source>
        <translation>ファウンドリー%1のフォントは、このコンピューターにありません</translation>
    </message>
    <message>
        <source>there is no collection %1</source>
        <translation>コレクション%1はありません</translation>
    </message>
    <message>
        <source>there is more than one collection %1; their ids: %2</source>
        <translation>コレクション%1は複数あります。ID: %2</translation>
    </message>
    <message>
        <source>there is a collection %1 already</source>
        <translation>コレクション%1はすでにあります</translation>
    </message>
    <message>
        <source>%1 is not in collection %2</source>
        <translation>%1はコレクション%2にありません</translation>
    </message>
    <message>
        <source>there is no style %1</source>
        <translation>スタイル%1はありません</translation>
    </message>
    <message>
        <source>there is more than one style %1; their ids: %2</source>
        <translation>スタイル%1は複数あります。ID: %2</translation>
    </message>
    <message>
        <source>there is a style %1 already</source>
        <translation>スタイル%1はすでにあります</translation>
    </message>
    <message>
        <source>%1 is not in style %2</source>
        <translation>%1はスタイル%2にありません</translation>
    </message>
    <message>
        <source>there is no foundry %1</source>
        <translation>ファウンドリー%1はありません</translation>
    </message>
    <message>
        <source>there is more than one foundry %1; their ids: %2</source>
        <translation>ファウンドリー%1は複数あります。ID: %2</translation>
    </message>
    <message>
        <source>there is a foundry %1 already</source>
        <translation>ファウンドリー%1はすでにあります</translation>
    </message>
    <message>
        <source>%1 is not in foundry %2</source>
        <translation>%1はファウンドリー%2にありません</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>このヘルプを表示</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too, beside those of the watched folders</source>
        <translation>監視フォルダーに加えて、DIR 以下のフォントも対象にする</translation>
    </message>
    <message>
        <source>take names of families that this machine lacks, for when their fonts come</source>
        <translation>このコンピューターにないファミリーの名前も受け付ける (後でフォントが加わる場合のため)</translation>
    </message>
    <message>
        <source>Tells what was switched on and off here, in the window and by lorvactl, the newest first. One line for each time: when, a tab, &quot;copied&quot;, &quot;registered&quot;, &quot;deactivated&quot;, &quot;moved&quot; or &quot;restored&quot;, a tab, the families; after &quot;moved&quot; a tab, and where to. Then a line for each file, which begins with a tab: &quot;done&quot;, &quot;skipped&quot; (its name was taken), &quot;failed&quot; or &quot;left&quot; (it was stopped before), a tab, the file; after &quot;failed&quot; a tab, and why.</source>
        <translation>ウィンドウと lorvactl で行ったフォントの有効/無効の切り替えを、新しい順に表示します。1 回ごとに 1 行で、日時、タブ、「copied」、「registered」、「deactivated」、「moved」または「restored」、タブ、ファミリーを表示します。「moved」の場合は、さらにタブと移動先が続きます。その下に、タブで始まるファイルごとの行で、「done」、「skipped」(同名のファイルがあった)、「failed」または「left」(処理前に中止された)、タブ、ファイルを表示します。「failed」の場合は、さらにタブと理由が続きます。</translation>
    </message>
    <message>
        <source>only the newest N times</source>
        <translation>新しいほうから N 回分だけ</translation>
    </message>
    <message>
        <source>one JSON array instead of lines</source>
        <translation>行の代わりに 1 つの JSON 配列</translation>
    </message>
    <message>
        <source>a table for spreadsheets instead, one row for each file</source>
        <translation>代わりに表計算用の表 (ファイルごとに 1 行)</translation>
    </message>
    <message>
        <source>history takes --json or --csv, not both</source>
        <translation>history に --json と --csv を同時に指定することはできません</translation>
    </message>
    <message>
        <source>history takes no further words</source>
        <translation>history にほかの引数は指定できません</translation>
    </message>
    <message>
        <source>Takes in what lorvactl export wrote; a lone - reads standard input. Collections and styles of the same id or name take the file&apos;s families in, others come anew, and what the file says about foundries and display settings wins; nothing is taken away. Families that this machine lacks stay members, for when their fonts come. Tells what changed, one line each. Done whole or not at all.</source>
        <translation>lorvactl export で書き出した内容を取り込みます。- だけを指定すると、標準入力を読み込みます。ID または名前が同じコレクションとスタイルには、ファイルのファミリーを追加し、それ以外は新しく作成します。ファウンドリーと表示設定については、ファイルの内容を優先します。何も取り除きません。このコンピューターにないファミリーも、後でフォントが加わる場合のためにメンバーとして残ります。変更内容を 1 行に 1 つずつ表示します。すべて実行されるか、まったく実行されないかのどちらかです。</translation>
    </message>
    <message>
        <source>make collections, styles and foundries what the file says and nothing else; what was there is first written to a file beside the preferences; the window no longer sorts families into styles by itself</source>
        <translation>コレクション、スタイル、ファウンドリーをファイルの内容だけにする。それまでの内容は、先に設定と同じ場所のファイルに書き出す。以後、ウィンドウはファミリーをスタイルに自動分類しない</translation>
    </message>
    <message>
        <source>only tell what would change</source>
        <translation>変更内容を表示するだけ</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>preference %1: made anew</source>
        <translation>設定項目 %1: 新規作成</translation>
    </message>
    <message>
        <source>%1 lacks what could not be read: %2</source>
        <translation>%1 には、読み込めなかったものが含まれていません: %2</translation>
    </message>
    <message>
        <source>%1; what stands there would be kept</source>
        <translation>%1。現在の内容は保管されます</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>変更するものはありません</translation>
    </message>
    <message>
        <source>what was there: %1</source>
        <translation>それまでの内容: %1</translation>
    </message>
    <message>
        <source>import takes one file</source>
        <translation>import にはファイルを 1 つ指定します</translation>
    </message>
    <message>
        <source>Shows what there is to know of every face of a font file: names in every language, format, metrics, embedding rights, characters, variation axes with their named values and instances, features, layout languages, colours and tables; and which writing scripts its families serve.</source>
        <translation>フォントファイルの各フェイスについて、わかることをすべて表示します: 各言語の名前、フォーマット、メトリクス、埋め込みの可否、文字、バリエーション軸とその名前付きの値とインスタンス、機能、レイアウト言語、カラー、テーブル、ファミリーが対応する文字体系。</translation>
    </message>
    <message>
        <source>list every glyph with its name and its character, too</source>
        <translation>すべてのグリフも、その名前と文字とともに一覧表示</translation>
    </message>
    <message>
        <source>info takes one font file</source>
        <translation>info にはフォントファイルを 1 つ指定します</translation>
    </message>
    <message>
        <source>standard input is not UTF-8 text</source>
        <translation>標準入力が UTF-8 テキストではありません</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>標準入力を読み込めません: %1</translation>
    </message>
    <message>
        <source>standard input has more than %1 bytes</source>
        <translation>標準入力が %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the name of a family must be UTF-8 text</source>
        <translation>ファミリーの名前は UTF-8 テキストでなければなりません</translation>
    </message>
    <message>
        <source>the name of a family cannot be empty</source>
        <translation>ファミリーの名前を空にすることはできません</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>フォルダー %1 はありません</translation>
    </message>
    <message>
        <source>--folder needs the name of a folder</source>
        <translation>--folder にはフォルダーの名前が必要です</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>the watched folders cannot be read (%1); they are left out</source>
        <translation>監視フォルダーを読み込めないため (%1)、除外しました</translation>
    </message>
    <message>
        <source>Lists the font families of this machine, one line each: the name, a tab, the styles. Characters that would break a line are written as escapes (\n, \u{202e}).</source>
        <translation>このコンピューターのフォントファミリーを、1 行に 1 つずつ、名前、タブ、スタイルの形で一覧表示します。行を崩す文字はエスケープ (\n、\u{202e}) で表示します。</translation>
    </message>
    <message>
        <source>one JSON array of families instead</source>
        <translation>代わりにファミリーの 1 つの JSON 配列</translation>
    </message>
    <message>
        <source>only families that can set latin, japanese, korean, simplifiedChinese or traditionalChinese</source>
        <translation>latin、japanese、korean、simplifiedChinese、traditionalChinese のいずれかを組めるファミリーだけ</translation>
    </message>
    <message>
        <source>--script takes %1</source>
        <translation>--script には %1 を指定します</translation>
    </message>
    <message>
        <source>list takes folders as --folder DIR</source>
        <translation>list のフォルダーは --folder DIR で指定します</translation>
    </message>
    <message>
        <source>list the font families of this machine</source>
        <translation>このコンピューターのフォントファミリーを一覧表示</translation>
    </message>
    <message>
        <source>list those that a search finds</source>
        <translation>検索で見つかるファミリーを一覧表示</translation>
    </message>
    <message>
        <source>read the fonts that changed, and tell what that took</source>
        <translation>変更されたフォントを読み込み、かかった時間を表示</translation>
    </message>
    <message>
        <source>show what a font file says about its faces</source>
        <translation>フォントファイルのフェイスの情報を表示</translation>
    </message>
    <message>
        <source>draw text in a font: PNG, SVG or PDF</source>
        <translation>フォントでテキストを描画: PNG、SVG、PDF</translation>
    </message>
    <message>
        <source>list, make and change collections</source>
        <translation>コレクションを一覧表示、作成、変更</translation>
    </message>
    <message>
        <source>list, make and change styles</source>
        <translation>スタイルを一覧表示、作成、変更</translation>
    </message>
    <message>
        <source>list and correct the foundries</source>
        <translation>ファウンドリーを一覧表示、修正</translation>
    </message>
    <message>
        <source>write all of that to a file</source>
        <translation>それらすべてをファイルに書き出す</translation>
    </message>
    <message>
        <source>take it in from such a file</source>
        <translation>そのようなファイルを取り込む</translation>
    </message>
    <message>
        <source>make fonts available to every program</source>
        <translation>フォントをすべてのアプリで使えるようにする</translation>
    </message>
    <message>
        <source>withdraw them again</source>
        <translation>フォントを再び使えないようにする</translation>
    </message>
    <message>
        <source>tell what is active, and how</source>
        <translation>有効なものとその方法を表示</translation>
    </message>
    <message>
        <source>list, add and remove watched folders</source>
        <translation>監視フォルダーを一覧表示、追加、除外</translation>
    </message>
    <message>
        <source>tell what was switched on and off, and when</source>
        <translation>いつ何を有効または無効にしたかを表示</translation>
    </message>
    <message>
        <source>tell how preferences, caches and activation fare</source>
        <translation>設定、キャッシュ、有効化の状態を表示</translation>
    </message>
    <message>
        <source>ask whether there is a newer release of Lorva</source>
        <translation>Lorva の新しいリリースがあるか確認</translation>
    </message>
    <message>
        <source>show this help; also after a command</source>
        <translation>このヘルプを表示。コマンドの後にも指定可</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command was not understood.</source>
        <translation>終了ステータス: 0 成功、1 失敗、2 コマンドを解釈できない。</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>コマンドがありません</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>不明なコマンド %1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 項目</numerusform>
        </translation>
    </message>
    <message>
        <source>readable</source>
        <translation>読み込み可</translation>
    </message>
    <message>
        <source>neither copy nor register</source>
        <translation>copy でも register でもありません</translation>
    </message>
    <message>
        <source>not a whole value of kind %1</source>
        <translation>種類 %1 の完全な値ではありません</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>データベースが破損しています</translation>
    </message>
    <message>
        <source>no folder for a copy: %1</source>
        <translation>コピー用のフォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>process %1 keeps it locked</source>
        <translation>プロセス %1 がロックしています</translation>
    </message>
    <message>
        <source>%1 is no regular file</source>
        <translation>%1 は通常のファイルではありません</translation>
    </message>
    <message>
        <source>no space is left in %1</source>
        <translation>%1 に空き領域がありません</translation>
    </message>
    <message>
        <source>Reads the fonts of this machine that have changed since the last scan, writes down what it learned for the next one, and tells what it did and how long each step took.</source>
        <translation>前回のスキャン以降に変更された、このコンピューターのフォントを読み込みます。わかったことを次回のために保存し、実行した内容と各段階にかかった時間を表示します。</translation>
    </message>
    <message>
        <source>Read the cache</source>
        <translation>キャッシュ読込</translation>
    </message>
    <message>
        <source>Find files</source>
        <translation>ファイル検索</translation>
    </message>
    <message>
        <source>Read faces</source>
        <translation>フェイス読込</translation>
    </message>
    <message>
        <source>Identify families</source>
        <translation>ファミリー識別</translation>
    </message>
    <message>
        <source>Group families</source>
        <translation>ファミリー分類</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>a time in milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Fonts: %1 found, %2 read, %3 unchanged</source>
        <translation>フォント: 検出 %1、読み込み %2、変更なし %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>%1 スタイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Families: %1 with %2, %3 newly identified</source>
        <translation>ファミリー: %1 (%2)、新たに識別 %3</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>scan takes folders as --folder DIR</source>
        <translation>scan のフォルダーは --folder DIR で指定します</translation>
    </message>
    <message>
        <source>Lists the font families that the window&apos;s search field finds: those with TEXT in their name, in a name in another language or in their manufacturer&apos;s name, whatever its case, accents and width, Hiragana for Katakana. One line each: the name, a tab, the styles.</source>
        <translation>ウィンドウの検索欄で見つかるフォントファミリーを一覧表示します。名前、ほかの言語での名前、製造元の名前のいずれかに TEXT を含むものが対象です。大文字と小文字、アクセント、全角と半角、ひらがなとカタカナは区別しません。1 行に 1 つずつ、名前、タブ、スタイルの形で表示します。</translation>
    </message>
    <message>
        <source>search takes one text</source>
        <translation>search にはテキストを 1 つ指定します</translation>
    </message>
    <message>
        <source>the text needs %1 pixels of height; give a --height up to %2</source>
        <translation>テキストには %1 ピクセルの高さが必要です。--height に %2 までの値を指定してください</translation>
    </message>
    <message>
        <source>the picture is too small for all of the text</source>
        <translation>画像が小さすぎてテキスト全体が収まりません</translation>
    </message>
    <message>
        <source>Draws text in a face of a font file. In an SVG or PDF the letters are outlines; no font is embedded.</source>
        <translation>フォントファイルのフェイスでテキストを描画します。SVG と PDF では文字はアウトラインになり、フォントは埋め込まれません。</translation>
    </message>
    <message>
        <source>what to write, a .png, .svg or .pdf by its name; never a font file</source>
        <translation>書き込むファイル。名前の .png、.svg、.pdf で形式が決まる。フォントファイルは不可</translation>
    </message>
    <message>
        <source>what to draw; a pangram if not given</source>
        <translation>描画するテキスト。省略時はパングラム</translation>
    </message>
    <message>
        <source>which face of a collection, from 0</source>
        <translation>コレクション内のフェイス (0 から)</translation>
    </message>
    <message>
        <source>a named instance of a variable face</source>
        <translation>バリアブルフォントの名前付きインスタンス</translation>
    </message>
    <message>
        <source>values of axes: wght=650,wdth=80</source>
        <translation>軸の値: wght=650,wdth=80</translation>
    </message>
    <message>
        <source>OpenType features: smcp,onum=0,ss01=1,-liga,+dlig</source>
        <translation>OpenType 機能: smcp,onum=0,ss01=1,-liga,+dlig</translation>
    </message>
    <message>
        <source>which palette of a colour font, from 0</source>
        <translation>カラーフォントのパレット (0 から)</translation>
    </message>
    <message>
        <source>for forms of that language: ja, zh-Hant, sr (BCP 47)</source>
        <translation>この言語の字形を使う: ja、zh-Hant、sr (BCP 47)</translation>
    </message>
    <message>
        <source>of the text; auto, by its first letter, if not given</source>
        <translation>テキストの方向。省略時は auto (最初の文字で決定)</translation>
    </message>
    <message>
        <source>pixels after each letter, -1000 to 1000</source>
        <translation>各文字の後の間隔 (ピクセル、-1000 から 1000)</translation>
    </message>
    <message>
        <source>pixels per em, 1 to 4096; 48 if not given</source>
        <translation>1 em のピクセル数 (1 から 4096)。省略時は 48</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; the text wraps. As wide as the text if not given</source>
        <translation>ピクセル数 (1 から 16384)。テキストは折り返し。省略時はテキストの幅</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; as high as the text if not given</source>
        <translation>ピクセル数 (1 から 16384)。省略時はテキストの高さ</translation>
    </message>
    <message>
        <source>of the text; black if not given</source>
        <translation>テキストの色。省略時は黒</translation>
    </message>
    <message>
        <source>white if not given</source>
        <translation>省略時は白</translation>
    </message>
    <message>
        <source>specimen takes one font file</source>
        <translation>specimen にはフォントファイルを 1 つ指定します</translation>
    </message>
    <message>
        <source>specimen needs a picture to write: -o PICTURE</source>
        <translation>specimen には書き込む画像が必要です: -o PICTURE</translation>
    </message>
    <message>
        <source>%1: the face has no instance %2</source>
        <translation>%1: フェイスにインスタンス%2はありません</translation>
    </message>
    <message>
        <source>%1: the face has no axes</source>
        <translation>%1: フェイスに軸がありません</translation>
    </message>
    <message>
        <source>%1: the face has no axis %2, only %3</source>
        <translation>%1: フェイスに軸%2はありません。あるのは %3 だけです</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3: drawn with %4 instead of %5</source>
        <translation>%1 の範囲は %2 から %3 です。%5 の代わりに %4 で描画しました</translation>
    </message>
    <message>
        <source>the face has no feature %1</source>
        <translation>フェイスに機能%1はありません</translation>
    </message>
    <message>
        <source>%1: the face has no palettes</source>
        <translation>%1: フェイスにパレットがありません</translation>
    </message>
    <message>
        <source>%1: the face has no palette %2, only 0 to %3</source>
        <translation>%1: フェイスにパレット %2 はありません。あるのは 0 から %3 までです</translation>
    </message>
    <message>
        <source>%1 takes a list of features as smcp,onum=0,-liga</source>
        <translation>%1 には smcp,onum=0,-liga のような機能のリストを指定します</translation>
    </message>
    <message>
        <source>%1 takes a list of axes as wght=650,wdth=80</source>
        <translation>%1 には wght=650,wdth=80 のような軸のリストを指定します</translation>
    </message>
    <message>
        <source>%1 takes a language as ja, zh-Hant or sr-Latn-RS (BCP 47)</source>
        <translation>%1 には ja、zh-Hant、sr-Latn-RS のような言語を指定します (BCP 47)</translation>
    </message>
    <message>
        <source>%1 takes ltr, rtl or auto</source>
        <translation>%1 には ltr、rtl、auto のいずれかを指定します</translation>
    </message>
    <message>
        <source>%1 takes a colour as #RRGGBB</source>
        <translation>%1 には #RRGGBB 形式の色を指定します</translation>
    </message>
    <message>
        <source>Tells what is available to every program, one line for each family: the name, a tab, &quot;active (copied)&quot;, &quot;active (registered)&quot;, &quot;active (system)&quot;, &quot;partly active&quot; or &quot;inactive&quot;. Of families that are named it tells of the files too, each on a line that begins with a tab: what it is (copied, registered, inactive, system), a tab, the file; of copies then a tab, and where they came from; of originals that were copied a tab, and what is active for them. A word with a slash is a file; its families are then judged by that file alone.</source>
        <translation>すべてのアプリで使えるものを、ファミリーごとに 1 行で、名前、タブ、「active (copied)」、「active (registered)」、「active (system)」、「partly active」または「inactive」の形で表示します。ファミリーを指定すると、そのファイルも、タブで始まる行にそれぞれ表示します: 種類 (copied、registered、inactive、system)、タブ、ファイル。コピーの場合はさらにタブとコピー元、コピーされた元のファイルの場合はさらにタブと代わりに有効なものが続きます。スラッシュを含む語はファイルとみなし、そのファミリーの状態はそのファイルだけで判断します。</translation>
    </message>
    <message>
        <source>one JSON array of families instead, always with their files</source>
        <translation>代わりにファミリーの 1 つの JSON 配列 (常にファイル付き)</translation>
    </message>
    <message>
        <source>Lists the styles, one line each: the name, a tab, the number of families; or the families of one, by name. Changes are seen at once by a window that is open. The window sorts families into styles by their names once, at its first start.</source>
        <translation>スタイルを 1 行に 1 つずつ、名前、タブ、ファミリー数の形で一覧表示します。スタイルを指定すると、そのファミリーを名前順に表示します。変更は、開いているウィンドウにすぐに反映されます。ウィンドウは最初の起動時に一度だけ、ファミリーを名前に基づいてスタイルに分類します。</translation>
    </message>
    <message>
        <source>a style of your own</source>
        <translation>独自のスタイルを作成</translation>
    </message>
    <message>
        <source>only a style of your own, not one of those that every library has</source>
        <translation>独自のスタイルのみ可。どのライブラリにもあるスタイルは不可</translation>
    </message>
    <message>
        <source>likewise; its families are in no style then</source>
        <translation>同上。そのファミリーはスタイルなしになる</translation>
    </message>
    <message>
        <source>moves families there: a family is in one style at most</source>
        <translation>ファミリーをスタイルに移動。1 つのファミリーが属するスタイルは 1 つまで</translation>
    </message>
    <message>
        <source>takes families out of it; they are in no style then</source>
        <translation>ファミリーをスタイルから除外 (スタイルなしになる)</translation>
    </message>
    <message>
        <source>makes these families its members; those that leave are in no style then</source>
        <translation>メンバーをこれらのファミリーだけにする。外れたものはスタイルなしになる</translation>
    </message>
    <message>
        <source>STYLE is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a style; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>STYLE は、--json で表示される ID、または名前です。名前の大文字と小文字は、複数に当てはまる場合を除いて区別しません。FAMILY は、このコンピューターまたはスタイルにあるファミリーの名前です。- だけを指定すると、標準入力から名前を 1 行に 1 つずつ読み込みます。コマンドは、すべて実行されるか、まったく実行されないかのどちらかです。</translation>
    </message>
    <message>
        <source>every library has the style %1, which cannot be renamed or deleted</source>
        <translation>スタイル%1はどのライブラリにもあり、名前の変更も削除もできません</translation>
    </message>
    <message>
        <source>%1 needs a family, a file or --collection</source>
        <translation>%1 には、ファミリー、ファイル、--collection のいずれかが必要です</translation>
    </message>
    <message>
        <source>the preference %1 cannot be read (%2)</source>
        <translation>設定項目 %1 を読み込めません (%2)</translation>
    </message>
    <message>
        <source>%1; what stood there is kept as %2</source>
        <translation>%1。それまでの内容は %2 として保管されます</translation>
    </message>
    <message>
        <source>Asks the makers of Lorva over the network whether there is a newer release. Nothing is downloaded or installed. One line tells that this is the newest; of a newer one the first line tells version, day and page, and the second, if there is one, what is new. The exit status is 0 in both cases, and 1 when neither could be found out, as in a build whose updates come with the system&apos;s.</source>
        <translation>Lorva の新しいリリースがあるかどうかを、ネットワークで開発元に確認します。ダウンロードやインストールはしません。最新の場合は、その旨を 1 行で表示します。新しいリリースがある場合は、1 行目にバージョン、日付、ページを、2 行目に (あれば) 新しい点を表示します。どちらの場合も終了ステータスは 0 です。アップデートがシステムから届くビルドなどで、どちらか判断できない場合は 1 です。</translation>
    </message>
    <message>
        <source>one JSON object instead: isNewer, runningVersion, version, date, page, summary</source>
        <translation>代わりに 1 つの JSON オブジェクト: isNewer、runningVersion、version、date、page、summary</translation>
    </message>
    <message>
        <source>ask there instead, https or on this computer; to try out a feed</source>
        <translation>代わりにここに確認。https またはこのコンピューター。フィードの試験用</translation>
    </message>
    <message>
        <source>the feed&apos;s Ed25519 key, 32 bytes in Base64, instead of the makers&apos;</source>
        <translation>開発元の鍵の代わりに使う、フィードの Ed25519 鍵 (Base64 の 32 バイト)</translation>
    </message>
    <message>
        <source>--feed needs an address</source>
        <translation>--feed にはアドレスが必要です</translation>
    </message>
    <message>
        <source>Lorva %1 is up to date</source>
        <translation>Lorva %1 は最新です</translation>
    </message>
    <message>
        <source>Lorva %1 was released on %2; this is %3: %4</source>
        <translation>Lorva %1 が %2 に公開されました。お使いのバージョンは %3 です: %4</translation>
    </message>
    <message>
        <source>updates takes no further words</source>
        <translation>updates にほかの引数は指定できません</translation>
    </message>
    <message>
        <source>this build does not look for new versions: the system&apos;s software updates bring them</source>
        <translation>このビルドは新しいバージョンを確認しません: システムのソフトウェアアップデートで届きます</translation>
    </message>
    <message>
        <source>%1; lorvactl doctor tells more</source>
        <translation>%1。詳しくは lorvactl doctor で確認できます</translation>
    </message>
    <message>
        <source>%1 and counts as absent</source>
        <translation>%1。ないものとして扱います</translation>
    </message>
    <message>
        <source>%1 could not be read and was moved to %2</source>
        <translation>%1 を読み込めなかったため、%2 に移動しました</translation>
    </message>
    <message>
        <source>the preferences could not be read</source>
        <translation>設定を読み込めませんでした</translation>
    </message>
    <message>
        <source>the preferences could not be written</source>
        <translation>設定を書き込めませんでした</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <translation>%1 に %2 は指定できません</translation>
    </message>
    <message>
        <source>%1 takes no empty name</source>
        <translation>%1 に空の名前は指定できません</translation>
    </message>
    <message>
        <source>%1 needs more words</source>
        <translation>%1 の引数が足りません</translation>
    </message>
    <message>
        <source>%1 takes fewer words</source>
        <translation>%1 の引数が多すぎます</translation>
    </message>
    <message>
        <source>%1 needs a family, and standard input names none</source>
        <translation>%1 にはファミリーが必要ですが、標準入力にありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>a name within a message, in the quotation marks of the language</extracomment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>between the parts of a list</extracomment>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n families</source>
        <translation>
            <numerusform>%n 個のファミリー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>%n 個のフォントファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>draw the picture of a font that file managers show</source>
        <translation>ファイルマネージャーに表示されるフォントの画像を描画</translation>
    </message>
    <message>
        <source>tell what a report of a fault needs, and nobody&apos;s names</source>
        <translation>不具合の報告に必要な情報を、名前を一切含めずに表示</translation>
    </message>
    <message>
        <source>Tells what a report of a fault needs: versions, the desktop, counts, sizes, times, what the doctor finds, and settings. Nothing in it names a font, a file, a folder, a collection or a person, and no text that was typed is in it. It is in English, whatever the language.</source>
        <translation>不具合の報告に必要な情報を表示します: バージョン、デスクトップ、個数、サイズ、時間、doctor の診断結果、設定。フォント、ファイル、フォルダー、コレクション、人の名前や、入力されたテキストは含まれません。言語の設定にかかわらず英語で表示します。</translation>
    </message>
    <message>
        <source>report takes no words</source>
        <translation>report に引数は指定できません</translation>
    </message>
    <message>
        <source>%1: has no letters or symbols to show</source>
        <translation>%1: 表示できる文字や記号がありません</translation>
    </message>
    <message>
        <source>Draws the picture of a font that file managers show: &quot;Aa&quot;, or letters or symbols of the font&apos;s own script, on a square sheet, written as PNG. FONT is a file or its file: address. It is read in a process that can do nothing but read and draw, within bounds of time and memory; for a font that cannot be shown nothing is written.</source>
        <translation>ファイルマネージャーに表示されるフォントの画像を描画します。&quot;Aa&quot;、またはフォント本来の文字体系の文字や記号を正方形の面に描き、PNG で書き込みます。FONT はファイルまたはその file: アドレスです。フォントは、読み込みと描画しかできないプロセスで、時間とメモリーの上限内で読み込みます。表示できないフォントの場合は何も書き込みません。</translation>
    </message>
    <message>
        <source>pixels each way, 16 to 2048; 256 if not given</source>
        <translation>縦横のピクセル数 (16 から 2048)。省略時は 256</translation>
    </message>
    <message>
        <source>which face of a collection, from 0; the first that can be drawn if not given</source>
        <translation>コレクション内のフェイス (0 から)。省略時は描画できる最初のもの</translation>
    </message>
    <message>
        <source>thumbnail takes a font file and a picture to write</source>
        <translation>thumbnail にはフォントファイルと書き込む画像を指定します</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>画像をエンコードできません</translation>
    </message>
    <message>
        <source>Reasons stay in the language of whoever switched the fonts, with --json and --csv, too.</source>
        <translation>理由は、フォントの有効/無効を切り替えた人の言語のまま残ります（--json と --csv でも同じ）。</translation>
    </message>
    <message>
        <source>the stored value is of another type</source>
        <translation>保存されている値の型が違います</translation>
    </message>
</context>
</TS>
