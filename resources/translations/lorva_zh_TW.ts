<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>ActivationTexts</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences, one after the other.</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>De-activate %1?</source>
        <translation>要停用 %1 嗎？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>選擇資料夾…</translation>
    </message>
    <message>
        <source>The reason is not known.</source>
        <translation>原因不明。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n Fonts</source>
        <translation>
            <numerusform>%n 款字型</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n 款字型</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names.</extracomment>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the names of a list.</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>The names of a list, and the last of them.</extracomment>
        <translation>%1 和 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more families</source>
        <extracomment>Families that a list of names does not name.</extracomment>
        <translation>
            <numerusform>另 %n 個家族</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. Activating makes them available too.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>這款字型的檔案還包含 %1，啟用後這些字型也會一併可用。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. Activating makes them available too.</source>
        <translation>
            <numerusform>這些字型的檔案還包含 %1，啟用後這些字型也會一併可用。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. De-activating removes all of them.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>這款字型的檔案還包含 %1，停用後會一併移除。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. De-activating removes all of them.</source>
        <translation>
            <numerusform>這些字型的檔案還包含 %1，停用後會一併移除。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to activate</source>
        <translation>沒有可啟用的字型</translation>
    </message>
    <message>
        <source>Every user-controllable font in %1 is already active.</source>
        <translation>%1 中可由使用者控制的字型都已啟用。</translation>
    </message>
    <message>
        <source>Every selected font is already active.</source>
        <translation>選取的字型都已啟用。</translation>
    </message>
    <message>
        <source>Nothing to de-activate</source>
        <translation>沒有可停用的字型</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in %1.</source>
        <translation>%1 中沒有可由使用者控制且已啟用的字型。</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in the selection.</source>
        <translation>選取範圍中沒有可由使用者控制且已啟用的字型。</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to activate.</source>
        <translation>
            <numerusform>%n 個檔案無法啟用。</numerusform>
        </translation>
    </message>
    <message>
        <source>Activation of %1 stopped</source>
        <translation>已中止啟用 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are available in every app on your Mac.</source>
        <translation>
            <numerusform>%2 個檔案中有 %1 個已可在這台電腦的所有應用程式中使用。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully activate %1</source>
        <translation>%1 未能完全啟用</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <translation>已安裝 %1</translation>
    </message>
    <message>
        <source>Now available in every app on your Mac.</source>
        <translation>現在可在這台電腦的所有應用程式中使用。</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to de-activate.</source>
        <translation>
            <numerusform>%n 個檔案無法停用。</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activation of %1 stopped</source>
        <translation>已中止停用 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are no longer available system-wide.</source>
        <translation>
            <numerusform>%2 個檔案中有 %1 個已不再供全系統使用。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully de-activate %1</source>
        <translation>%1 未能完全停用</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>已移除 %1</translation>
    </message>
    <message>
        <source>No longer available system-wide.</source>
        <translation>不再供全系統使用。</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be brought back.</source>
        <translation>
            <numerusform>%n 個檔案無法還原。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are back.</source>
        <translation>
            <numerusform>%2 個檔案中已還原 %1 個。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully bring back %1</source>
        <translation>%1 未能完全還原</translation>
    </message>
    <message>
        <source>The font will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>這款字型將不再供全系統使用。原始字型檔不會更動。</translation>
    </message>
    <message>
        <source>The fonts will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>這些字型將不再供全系統使用。原始字型檔不會更動。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font files are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>%1 不是由 Lorva 安裝的，因此無法得知原始字型檔的位置。請選擇要移入的資料夾，否則您會失去唯一的副本。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install some of these fonts, so we don&apos;t know where the originals are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>其中有些字型不是由 Lorva 安裝的，因此無法得知原始檔案的位置。請選擇要移入的資料夾，否則您會失去唯一的副本。</translation>
    </message>
    <message>
        <source>The style will no longer be available system-wide.</source>
        <translation>這個樣式將不再供全系統使用。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font file is. Choose a folder to move it to, otherwise you&apos;d lose your only copy.</source>
        <translation>%1 不是由 Lorva 安裝的，因此無法得知原始字型檔的位置。請選擇要移入的資料夾，否則您會失去唯一的副本。</translation>
    </message>
    <message>
        <source>Choose a folder for the font files that are de-activated.</source>
        <translation>選擇用來存放停用字型檔的資料夾。</translation>
    </message>
    <message>
        <source>Move Here</source>
        <translation>移到這裡</translation>
    </message>
    <message>
        <source>Activating %1…</source>
        <translation>正在啟用 %1…</translation>
    </message>
    <message numerus="yes">
        <source>Activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>正在啟用 %1… %2／%3 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activating %1…</source>
        <translation>正在停用 %1…</translation>
    </message>
    <message numerus="yes">
        <source>De-activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>正在停用 %1… %2／%3 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>Bringing back %1…</source>
        <translation>正在還原 %1…</translation>
    </message>
    <message numerus="yes">
        <source>Bringing back %1… %2 of %3 files</source>
        <translation>
            <numerusform>正在還原 %1… %2／%3 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t read the activation history</source>
        <translation>無法讀取啟用記錄</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the list</source>
        <translation>無法儲存清單</translation>
    </message>
    <message>
        <source>Files That Failed</source>
        <translation>失敗的檔案</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be switched on or off.</source>
        <translation>
            <numerusform>%n 個檔案無法啟用或停用。</numerusform>
        </translation>
    </message>
    <message>
        <source>No file has failed.</source>
        <translation>沒有失敗的檔案。</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>cannot write %1: not a regular file</source>
        <translation>無法寫入 %1：不是一般檔案</translation>
    </message>
</context>
<context>
    <name>BackgroundImagePanel</name>
    <message>
        <source>White Text</source>
        <translation>白色文字</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>黑色文字</translation>
    </message>
    <message>
        <source>Custom Text Color</source>
        <translation>自訂文字顏色</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文字顏色</translation>
    </message>
    <message>
        <source>Your Image</source>
        <translation>您的圖片</translation>
    </message>
    <message>
        <source>Add Image…</source>
        <translation>加入圖片…</translation>
    </message>
</context>
<context>
    <name>BackgroundImageStore</name>
    <message>
        <source>The image is not there</source>
        <translation>找不到圖片</translation>
    </message>
    <message>
        <source>The file is too large for a background</source>
        <translation>檔案太大，無法作為背景</translation>
    </message>
</context>
<context>
    <name>BackgroundImages</name>
    <message>
        <source>Dusk</source>
        <extracomment>Background images, named by what they remind of.</extracomment>
        <translation>暮色</translation>
    </message>
    <message>
        <source>Dawn</source>
        <translation>晨曦</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>餘燼</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙張</translation>
    </message>
    <message>
        <source>Lagoon</source>
        <translation>潟湖</translation>
    </message>
    <message>
        <source>Fern</source>
        <translation>蕨綠</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>藍圖</translation>
    </message>
    <message>
        <source>Terrazzo</source>
        <translation>磨石子</translation>
    </message>
    <message>
        <source>Ink Wash</source>
        <translation>水墨</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>梅紫</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>極光</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>石墨</translation>
    </message>
</context>
<context>
    <name>BrowserActions</name>
    <message>
        <source>There is no place to keep images</source>
        <translation>沒有可存放圖片的位置</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>啟用 %n 款字型…</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>停用</translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>停用 %n 款字型</numerusform>
        </translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>啟用…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>啟用其餘樣式…</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The style category of a family: Serif, Script and so on.</extracomment>
        <translation>風格</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>收藏集</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>字型廠商</translation>
    </message>
    <message>
        <source>None</source>
        <comment>style</comment>
        <extracomment>The family has no style category.</extracomment>
        <translation>無</translation>
    </message>
    <message>
        <source>None</source>
        <comment>foundry</comment>
        <extracomment>The family has no foundry.</extracomment>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CharacterBlocks</name>
    <message>
        <source>Latin</source>
        <translation>拉丁文</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Punctuation &amp; Symbols</source>
        <translation>標點與符號</translation>
    </message>
    <message>
        <source>Kana</source>
        <translation>假名</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>諺文</translation>
    </message>
    <message>
        <source>Han</source>
        <extracomment>The Chinese characters.</extracomment>
        <translation>漢字</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Other characters.</extracomment>
        <translation>其他</translation>
    </message>
</context>
<context>
    <name>CharacterCells</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A character, and its name.</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>沒有字元對應到這個字符。</translation>
    </message>
</context>
<context>
    <name>CharacterNames</name>
    <message>
        <source>Uppercase letter</source>
        <extracomment>The general category that Unicode gives a character.</extracomment>
        <translation>大寫字母</translation>
    </message>
    <message>
        <source>Lowercase letter</source>
        <translation>小寫字母</translation>
    </message>
    <message>
        <source>Titlecase letter</source>
        <translation>標題大寫字母</translation>
    </message>
    <message>
        <source>Modifier letter</source>
        <translation>修飾字母</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Mathematical symbol</source>
        <translation>數學符號</translation>
    </message>
    <message>
        <source>Currency symbol</source>
        <translation>貨幣符號</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符號</translation>
    </message>
    <message>
        <source>Combining mark</source>
        <translation>組合記號</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>數值</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>標點</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>A kind of character, not the key.</extracomment>
        <translation>空白</translation>
    </message>
    <message>
        <source>Private use</source>
        <extracomment>A kind of character.</extracomment>
        <translation>私用</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
</context>
<context>
    <name>CharacterPopoverViewController</name>
    <message>
        <source>Copy %1: %2</source>
        <translation>複製%1：%2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
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
        <translation>朱紅</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森綠</translation>
    </message>
    <message>
        <source>Aubergine</source>
        <translation>茄紫</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙白</translation>
    </message>
    <message>
        <source>Lemon</source>
        <translation>檸檬黃</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>緋粉</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>天藍</translation>
    </message>
    <message>
        <source>Swap Text and Background</source>
        <translation>對調文字與背景顏色</translation>
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
        <translation>低對比 %1:1</translation>
    </message>
    <message>
        <source>Contrast %1:1</source>
        <translation>對比 %1:1</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>%1 — not available</source>
        <translation>%1 — 無法使用</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>%1: took too long to read and was given up</source>
        <translation>%1：讀取時間過長，已放棄</translation>
    </message>
    <message>
        <source>%1: took too much time or memory to read and was given up</source>
        <translation>%1：讀取耗費過多時間或記憶體，已放棄</translation>
    </message>
    <message>
        <source>%1: was given up: reading it led to what reading never needs</source>
        <translation>%1：已放棄，讀取時出現讀取絕不需要的動作</translation>
    </message>
    <message>
        <source>%1: takes more memory than it may have</source>
        <translation>%1：所需的記憶體超過允許的上限</translation>
    </message>
    <message>
        <source>%1: is damaged; reading it failed</source>
        <translation>%1：已損毀，讀取失敗</translation>
    </message>
    <message>
        <source>no new process can be started: %1</source>
        <translation>無法啟動新的處理程序：%1</translation>
    </message>
    <message>
        <source>%1: reading it needed something that fonts never need, so it was stopped</source>
        <translation>%1：讀取時需要字型從不需要的操作，因此已中止</translation>
    </message>
    <message>
        <source>%1: its picture is too large</source>
        <translation>%1：產生的圖片太大</translation>
    </message>
</context>
<context>
    <name>DesktopTrash</name>
    <message>
        <source>cannot move %1 to the Trash: its volume has none</source>
        <translation>無法將 %1 移到垃圾桶：所在磁碟區沒有垃圾桶</translation>
    </message>
    <message>
        <source>cannot take %1 from the Trash: the name is taken</source>
        <translation>無法從垃圾桶取回 %1：名稱已被使用</translation>
    </message>
</context>
<context>
    <name>DetailMenu</name>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>複製為 CSS</translation>
    </message>
</context>
<context>
    <name>DiscoverFoundry</name>
    <message>
        <source>Independent Swiss type foundry offering original retail and custom typefaces with a contemporary aesthetic in the Swiss tradition.</source>
        <translation>瑞士獨立字型廠商，承襲瑞士設計傳統，提供具當代美感的原創零售與客製字型。</translation>
    </message>
    <message>
        <source>Type foundry of Kris Sowersby in Wellington, New Zealand.</source>
        <translation>Kris Sowersby 的字型廠商，位於紐西蘭威靈頓。</translation>
    </message>
    <message>
        <source>Montréal-based type foundry offering free-to-try retail typefaces.</source>
        <translation>蒙特婁的字型廠商，提供可免費試用的零售字型。</translation>
    </message>
    <message>
        <source>Berlin-based type design studio offering retail and bespoke typefaces, design software, research, and consultancy.</source>
        <translation>柏林的字型設計工作室，提供零售與訂製字型、設計軟體、研究與顧問服務。</translation>
    </message>
    <message>
        <source>Indonesian type foundry offering contemporary display and text families.</source>
        <translation>印尼字型廠商，提供當代的標題與內文字型家族。</translation>
    </message>
    <message>
        <source>Type foundry from Gijón, Spain, offering typefaces with pay-what-you-want options.</source>
        <translation>西班牙希洪的字型廠商，提供自由定價的字型。</translation>
    </message>
    <message>
        <source>Prague-based type foundry offering large variable families.</source>
        <translation>布拉格的字型廠商，提供大型可變字型家族。</translation>
    </message>
    <message>
        <source>Californian type foundry of James Edmondson, offering expressive display typefaces.</source>
        <translation>James Edmondson 的加州字型廠商，提供富有個性的標題字型。</translation>
    </message>
    <message>
        <source>Stockholm-based type foundry of Göran Söderström.</source>
        <translation>Göran Söderström 的字型廠商，位於斯德哥爾摩。</translation>
    </message>
    <message>
        <source>Type foundry from Geneva, Switzerland.</source>
        <translation>瑞士日內瓦的字型廠商。</translation>
    </message>
    <message>
        <source>Type foundry offering typefaces for text and interfaces.</source>
        <translation>提供內文與介面字型的字型廠商。</translation>
    </message>
    <message>
        <source>Swiss type foundry offering typefaces and design books.</source>
        <translation>瑞士字型廠商，提供字型與設計書籍。</translation>
    </message>
    <message>
        <source>Type foundry of Mattox Shuler, offering display families and workhorses.</source>
        <translation>Mattox Shuler 的字型廠商，提供標題字型家族與百搭的實用字型。</translation>
    </message>
    <message>
        <source>Californian type foundry of Amy and Jen Hood.</source>
        <translation>Amy 與 Jen Hood 的加州字型廠商。</translation>
    </message>
    <message>
        <source>Type foundry with a small catalogue of contemporary typefaces.</source>
        <translation>型錄小而精、專注於當代字型的字型廠商。</translation>
    </message>
    <message>
        <source>Type foundry of the lettering artist Erik Marinovich.</source>
        <translation>手繪字藝術家 Erik Marinovich 的字型廠商。</translation>
    </message>
    <message>
        <source>Type foundry of Dino dos Santos in Porto, Portugal.</source>
        <translation>Dino dos Santos 的字型廠商，位於葡萄牙波多。</translation>
    </message>
    <message>
        <source>The first open-source type foundry, launched in 2009, providing a curated collection of professional-quality free fonts like League Gothic and League Spartan.</source>
        <translation>首家開放原始碼字型廠商，2009 年創立，精選提供專業品質的免費字型，如 League Gothic 與 League Spartan。</translation>
    </message>
</context>
<context>
    <name>FaceInformation</name>
    <message>
        <source>Copyright</source>
        <translation>著作權</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>家族</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>樣式</translation>
    </message>
    <message>
        <source>Unique identifier</source>
        <translation>唯一識別碼</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>全名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 名稱</translation>
    </message>
    <message>
        <source>Trademark</source>
        <translation>商標</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>設計師</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Manufacturer’s address</source>
        <translation>製造商網址</translation>
    </message>
    <message>
        <source>Designer’s address</source>
        <translation>設計師網址</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>授權</translation>
    </message>
    <message>
        <source>Licence address</source>
        <translation>授權網址</translation>
    </message>
    <message>
        <source>Typographic family</source>
        <translation>排版家族</translation>
    </message>
    <message>
        <source>Typographic style</source>
        <translation>排版樣式</translation>
    </message>
    <message>
        <source>Compatible full name</source>
        <translation>相容全名</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>範例文字</translation>
    </message>
    <message>
        <source>PostScript CID name</source>
        <translation>PostScript CID 名稱</translation>
    </message>
    <message>
        <source>WWS family</source>
        <translation>WWS 家族</translation>
    </message>
    <message>
        <source>WWS style</source>
        <translation>WWS 樣式</translation>
    </message>
    <message>
        <source>Palette for light backgrounds</source>
        <translation>淺色背景用調色盤</translation>
    </message>
    <message>
        <source>Palette for dark backgrounds</source>
        <translation>深色背景用調色盤</translation>
    </message>
    <message>
        <source>Variations PostScript name prefix</source>
        <translation>可變字型 PostScript 名稱前綴</translation>
    </message>
    <message>
        <source>Installable</source>
        <translation>可安裝</translation>
    </message>
    <message>
        <source>Restricted: not without the owner’s permission</source>
        <translation>受限：須經擁有者許可</translation>
    </message>
    <message>
        <source>Preview and print</source>
        <translation>預覽與列印</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>可編輯</translation>
    </message>
    <message>
        <source>%1, bitmaps only</source>
        <extracomment>%1 is what a licence lets documents do with the font that they embed, such as &quot;Editable&quot;.</extracomment>
        <translation>%1，僅限點陣字</translation>
    </message>
    <message>
        <source>%1, no subsetting, bitmaps only</source>
        <translation>%1，不可子集化，僅限點陣字</translation>
    </message>
    <message>
        <source>%1, no subsetting</source>
        <translation>%1，不可子集化</translation>
    </message>
</context>
<context>
    <name>FeatureRegistry</name>
    <message>
        <source>All Typographic Features</source>
        <translation>所有排版特性</translation>
    </message>
    <message>
        <source>Ligatures</source>
        <translation>連字</translation>
    </message>
    <message>
        <source>Cursive Connection</source>
        <translation>字母連寫</translation>
    </message>
    <message>
        <source>Letter Case</source>
        <translation>字母大小寫</translation>
    </message>
    <message>
        <source>Vertical Substitution</source>
        <translation>直排替代</translation>
    </message>
    <message>
        <source>Linguistic Rearrangement</source>
        <translation>語言重排</translation>
    </message>
    <message>
        <source>Number Spacing</source>
        <translation>數字間距</translation>
    </message>
    <message>
        <source>Smart Swashes</source>
        <translation>智慧花飾字</translation>
    </message>
    <message>
        <source>Diacritics</source>
        <translation>變音符號</translation>
    </message>
    <message>
        <source>Vertical Position</source>
        <translation>垂直位置</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>分數</translation>
    </message>
    <message>
        <source>Overlapping Characters</source>
        <translation>字元重疊</translation>
    </message>
    <message>
        <source>Typographic Extras</source>
        <translation>排版附加功能</translation>
    </message>
    <message>
        <source>Mathematical Extras</source>
        <translation>數學附加功能</translation>
    </message>
    <message>
        <source>Ornament Sets</source>
        <translation>裝飾符號集</translation>
    </message>
    <message>
        <source>Character Alternatives</source>
        <translation>替代字元</translation>
    </message>
    <message>
        <source>Design Complexity</source>
        <translation>設計複雜度</translation>
    </message>
    <message>
        <source>Style Options</source>
        <translation>樣式選項</translation>
    </message>
    <message>
        <source>Character Shape</source>
        <translation>字元字形</translation>
    </message>
    <message>
        <source>Number Case</source>
        <translation>數字字高</translation>
    </message>
    <message>
        <source>Text Spacing</source>
        <translation>文字間距</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>轉寫</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>註記</translation>
    </message>
    <message>
        <source>Kana Spacing</source>
        <translation>假名間距</translation>
    </message>
    <message>
        <source>Ideographic Spacing</source>
        <translation>漢字間距</translation>
    </message>
    <message>
        <source>Unicode Decomposition</source>
        <translation>Unicode 分解</translation>
    </message>
    <message>
        <source>Ruby Kana</source>
        <translation>旁註假名</translation>
    </message>
    <message>
        <source>CJK Symbol Alternatives</source>
        <translation>CJK 符號替代字</translation>
    </message>
    <message>
        <source>Ideographic Alternatives</source>
        <translation>漢字替代字</translation>
    </message>
    <message>
        <source>CJK Vertical Roman Placement</source>
        <translation>CJK 直排羅馬字位置</translation>
    </message>
    <message>
        <source>Italic CJK Roman</source>
        <translation>CJK 斜體羅馬字</translation>
    </message>
    <message>
        <source>Case-Sensitive Layout</source>
        <translation>區分大小寫的版面</translation>
    </message>
    <message>
        <source>Alternate Kana</source>
        <translation>替代假名</translation>
    </message>
    <message>
        <source>Stylistic Alternatives</source>
        <translation>樣式替代字</translation>
    </message>
    <message>
        <source>Contextual Alternatives</source>
        <translation>文意替代字</translation>
    </message>
    <message>
        <source>Lower Case</source>
        <translation>小寫</translation>
    </message>
    <message>
        <source>Upper Case</source>
        <translation>大寫</translation>
    </message>
    <message>
        <source>Language Tag</source>
        <translation>語言標籤</translation>
    </message>
    <message>
        <source>CJK Roman Spacing</source>
        <translation>CJK 羅馬字間距</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>必要連字</translation>
    </message>
    <message>
        <source>Common Ligatures</source>
        <translation>常用連字</translation>
    </message>
    <message>
        <source>Rare Ligatures</source>
        <translation>罕用連字</translation>
    </message>
    <message>
        <source>Logos</source>
        <translation>標誌</translation>
    </message>
    <message>
        <source>Rebus Pictures</source>
        <translation>圖謎</translation>
    </message>
    <message>
        <source>Diphthong Ligatures</source>
        <translation>雙元音連字</translation>
    </message>
    <message>
        <source>Squared Ligatures</source>
        <translation>方框連字</translation>
    </message>
    <message>
        <source>Abbreviated Squared Ligatures</source>
        <translation>縮略方框連字</translation>
    </message>
    <message>
        <source>Symbol Ligatures</source>
        <translation>符號連字</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>文意連字</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>歷史連字</translation>
    </message>
    <message>
        <source>Unconnected</source>
        <translation>不連接</translation>
    </message>
    <message>
        <source>Partially Connected</source>
        <translation>部分連接</translation>
    </message>
    <message>
        <source>Cursive</source>
        <translation>連寫</translation>
    </message>
    <message>
        <source>Upper and Lower Case</source>
        <translation>大寫與小寫</translation>
    </message>
    <message>
        <source>All Capitals</source>
        <translation>全部大寫</translation>
    </message>
    <message>
        <source>All Lower Case</source>
        <translation>全部小寫</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>小型大寫字</translation>
    </message>
    <message>
        <source>Initial Capitals</source>
        <translation>首字母大寫</translation>
    </message>
    <message>
        <source>Initial Capitals and Small Capitals</source>
        <translation>首字母大寫與小型大寫字</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>單一字高</translation>
    </message>
    <message>
        <source>Vertical Forms</source>
        <translation>直排字形</translation>
    </message>
    <message>
        <source>Monospaced Numbers</source>
        <translation>等寬數字</translation>
    </message>
    <message>
        <source>Proportional Numbers</source>
        <translation>比例寬數字</translation>
    </message>
    <message>
        <source>Third-Width Numbers</source>
        <translation>三分之一寬數字</translation>
    </message>
    <message>
        <source>Quarter-Width Numbers</source>
        <translation>四分之一寬數字</translation>
    </message>
    <message>
        <source>Word Initial Swashes</source>
        <translation>詞首花飾字</translation>
    </message>
    <message>
        <source>Word Final Swashes</source>
        <translation>詞尾花飾字</translation>
    </message>
    <message>
        <source>Line Initial Swashes</source>
        <translation>行首花飾字</translation>
    </message>
    <message>
        <source>Line Final Swashes</source>
        <translation>行尾花飾字</translation>
    </message>
    <message>
        <source>Non-Final Swashes</source>
        <translation>非詞尾花飾字</translation>
    </message>
    <message>
        <source>Show Diacritics</source>
        <translation>顯示變音符號</translation>
    </message>
    <message>
        <source>Hide Diacritics</source>
        <translation>隱藏變音符號</translation>
    </message>
    <message>
        <source>Decompose Diacritics</source>
        <translation>分解變音符號</translation>
    </message>
    <message>
        <source>Normal Position</source>
        <translation>一般位置</translation>
    </message>
    <message>
        <source>Superiors</source>
        <translation>上標字</translation>
    </message>
    <message>
        <source>Inferiors</source>
        <translation>下標字</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>序數</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>科學下標</translation>
    </message>
    <message>
        <source>No Fractions</source>
        <translation>無分數</translation>
    </message>
    <message>
        <source>Vertical Fractions</source>
        <translation>直式分數</translation>
    </message>
    <message>
        <source>Diagonal Fractions</source>
        <translation>斜線分數</translation>
    </message>
    <message>
        <source>Prevent Overlap</source>
        <translation>避免重疊</translation>
    </message>
    <message>
        <source>Hyphens to Em Dash</source>
        <translation>連字號轉長破折號</translation>
    </message>
    <message>
        <source>Hyphen to En Dash</source>
        <translation>連字號轉短破折號</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>帶斜線的零</translation>
    </message>
    <message>
        <source>Form Interrobang</source>
        <translation>合成疑問驚嘆號</translation>
    </message>
    <message>
        <source>Smart Quotes</source>
        <translation>智慧引號</translation>
    </message>
    <message>
        <source>Periods to Ellipsis</source>
        <translation>句點轉刪節號</translation>
    </message>
    <message>
        <source>Hyphen to Minus</source>
        <translation>連字號轉減號</translation>
    </message>
    <message>
        <source>Asterisk to Multiply</source>
        <translation>星號轉乘號</translation>
    </message>
    <message>
        <source>Slash to Divide</source>
        <translation>斜線轉除號</translation>
    </message>
    <message>
        <source>Inequality Ligatures</source>
        <translation>不等號連字</translation>
    </message>
    <message>
        <source>Exponents</source>
        <translation>指數</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>數學希臘字母</translation>
    </message>
    <message>
        <source>No Ornaments</source>
        <translation>無裝飾符號</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>雜錦符號</translation>
    </message>
    <message>
        <source>Pi Characters</source>
        <translation>Pi 字元</translation>
    </message>
    <message>
        <source>Fleurons</source>
        <translation>花葉飾</translation>
    </message>
    <message>
        <source>Decorative Borders</source>
        <translation>裝飾邊框</translation>
    </message>
    <message>
        <source>International Symbols</source>
        <translation>國際符號</translation>
    </message>
    <message>
        <source>Mathematical Symbols</source>
        <translation>數學符號</translation>
    </message>
    <message>
        <source>No Alternates</source>
        <translation>無替代字</translation>
    </message>
    <message>
        <source>Design Level 1</source>
        <translation>設計等級 1</translation>
    </message>
    <message>
        <source>Design Level 2</source>
        <translation>設計等級 2</translation>
    </message>
    <message>
        <source>Design Level 3</source>
        <translation>設計等級 3</translation>
    </message>
    <message>
        <source>Design Level 4</source>
        <translation>設計等級 4</translation>
    </message>
    <message>
        <source>Design Level 5</source>
        <translation>設計等級 5</translation>
    </message>
    <message>
        <source>No Style Options</source>
        <translation>無樣式選項</translation>
    </message>
    <message>
        <source>Display Text</source>
        <translation>標題文字</translation>
    </message>
    <message>
        <source>Engraved Text</source>
        <translation>雕刻體文字</translation>
    </message>
    <message>
        <source>Illuminated Capitals</source>
        <translation>彩飾大寫字</translation>
    </message>
    <message>
        <source>Titling Capitals</source>
        <translation>標題大寫字</translation>
    </message>
    <message>
        <source>Tall Capitals</source>
        <translation>高型大寫字</translation>
    </message>
    <message>
        <source>Traditional Characters</source>
        <translation>傳統字形</translation>
    </message>
    <message>
        <source>Simplified Characters</source>
        <translation>簡化字形</translation>
    </message>
    <message>
        <source>JIS 1978 Characters</source>
        <translation>JIS 1978 字形</translation>
    </message>
    <message>
        <source>JIS 1983 Characters</source>
        <translation>JIS 1983 字形</translation>
    </message>
    <message>
        <source>JIS 1990 Characters</source>
        <translation>JIS 1990 字形</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 1</source>
        <translation>傳統字形，替代 1</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 2</source>
        <translation>傳統字形，替代 2</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 3</source>
        <translation>傳統字形，替代 3</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 4</source>
        <translation>傳統字形，替代 4</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 5</source>
        <translation>傳統字形，替代 5</translation>
    </message>
    <message>
        <source>Expert Characters</source>
        <translation>專業字形</translation>
    </message>
    <message>
        <source>JIS 2004 Characters</source>
        <translation>JIS 2004 字形</translation>
    </message>
    <message>
        <source>Hojo Characters</source>
        <translation>補助漢字字形</translation>
    </message>
    <message>
        <source>NLC Characters</source>
        <translation>NLC 字形</translation>
    </message>
    <message>
        <source>Traditional Names Characters</source>
        <translation>傳統人名字形</translation>
    </message>
    <message>
        <source>Lower Case Numbers</source>
        <translation>舊式數字</translation>
    </message>
    <message>
        <source>Upper Case Numbers</source>
        <translation>齊高數字</translation>
    </message>
    <message>
        <source>Proportional Text</source>
        <translation>比例寬文字</translation>
    </message>
    <message>
        <source>Monospaced Text</source>
        <translation>等寬文字</translation>
    </message>
    <message>
        <source>Half-Width Text</source>
        <translation>半形文字</translation>
    </message>
    <message>
        <source>Third-Width Text</source>
        <translation>三分之一寬文字</translation>
    </message>
    <message>
        <source>Quarter-Width Text</source>
        <translation>四分之一寬文字</translation>
    </message>
    <message>
        <source>Alternate Proportional Text</source>
        <translation>替代比例寬文字</translation>
    </message>
    <message>
        <source>Alternate Half-Width Text</source>
        <translation>替代半形文字</translation>
    </message>
    <message>
        <source>No Transliteration</source>
        <translation>不轉寫</translation>
    </message>
    <message>
        <source>Hanja to Hangul</source>
        <translation>韓文漢字轉諺文</translation>
    </message>
    <message>
        <source>Hiragana to Katakana</source>
        <translation>平假名轉片假名</translation>
    </message>
    <message>
        <source>Katakana to Hiragana</source>
        <translation>片假名轉平假名</translation>
    </message>
    <message>
        <source>Kana to Romanization</source>
        <translation>假名轉羅馬字</translation>
    </message>
    <message>
        <source>Romanization to Hiragana</source>
        <translation>羅馬字轉平假名</translation>
    </message>
    <message>
        <source>Romanization to Katakana</source>
        <translation>羅馬字轉片假名</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 1</source>
        <translation>韓文漢字轉諺文，替代 1</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 2</source>
        <translation>韓文漢字轉諺文，替代 2</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 3</source>
        <translation>韓文漢字轉諺文，替代 3</translation>
    </message>
    <message>
        <source>No Annotation</source>
        <translation>無註記</translation>
    </message>
    <message>
        <source>Box Annotation</source>
        <translation>方框註記</translation>
    </message>
    <message>
        <source>Rounded Box Annotation</source>
        <translation>圓角方框註記</translation>
    </message>
    <message>
        <source>Circle Annotation</source>
        <translation>圓圈註記</translation>
    </message>
    <message>
        <source>Inverted Circle Annotation</source>
        <translation>反白圓圈註記</translation>
    </message>
    <message>
        <source>Parenthesis Annotation</source>
        <translation>括號註記</translation>
    </message>
    <message>
        <source>Period Annotation</source>
        <translation>句點註記</translation>
    </message>
    <message>
        <source>Roman Numeral Annotation</source>
        <translation>羅馬數字註記</translation>
    </message>
    <message>
        <source>Diamond Annotation</source>
        <translation>菱形註記</translation>
    </message>
    <message>
        <source>Inverted Box Annotation</source>
        <translation>反白方框註記</translation>
    </message>
    <message>
        <source>Inverted Rounded Box Annotation</source>
        <translation>反白圓角方框註記</translation>
    </message>
    <message>
        <source>Full-Width Kana</source>
        <translation>全形假名</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>比例寬假名</translation>
    </message>
    <message>
        <source>Full-Width Ideographs</source>
        <translation>全形漢字</translation>
    </message>
    <message>
        <source>Proportional Ideographs</source>
        <translation>比例寬漢字</translation>
    </message>
    <message>
        <source>Half-Width Ideographs</source>
        <translation>半形漢字</translation>
    </message>
    <message>
        <source>Canonical Composition</source>
        <translation>標準合成</translation>
    </message>
    <message>
        <source>Compatibility Composition</source>
        <translation>相容合成</translation>
    </message>
    <message>
        <source>Transcoding Composition</source>
        <translation>轉碼合成</translation>
    </message>
    <message>
        <source>No CJK Symbol Alternatives</source>
        <translation>無 CJK 符號替代字</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 1</source>
        <translation>CJK 符號替代字 1</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 2</source>
        <translation>CJK 符號替代字 2</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 3</source>
        <translation>CJK 符號替代字 3</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 4</source>
        <translation>CJK 符號替代字 4</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 5</source>
        <translation>CJK 符號替代字 5</translation>
    </message>
    <message>
        <source>No Ideographic Alternatives</source>
        <translation>無漢字替代字</translation>
    </message>
    <message>
        <source>Ideographic Alternative 1</source>
        <translation>漢字替代字 1</translation>
    </message>
    <message>
        <source>Ideographic Alternative 2</source>
        <translation>漢字替代字 2</translation>
    </message>
    <message>
        <source>Ideographic Alternative 3</source>
        <translation>漢字替代字 3</translation>
    </message>
    <message>
        <source>Ideographic Alternative 4</source>
        <translation>漢字替代字 4</translation>
    </message>
    <message>
        <source>Ideographic Alternative 5</source>
        <translation>漢字替代字 5</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>置中</translation>
    </message>
    <message>
        <source>Horizontal Baseline</source>
        <translation>橫排基線</translation>
    </message>
    <message>
        <source>Case-Sensitive Spacing</source>
        <translation>區分大小寫的間距</translation>
    </message>
    <message>
        <source>Alternate Horizontal Kana</source>
        <translation>橫排替代假名</translation>
    </message>
    <message>
        <source>Alternate Vertical Kana</source>
        <translation>直排替代假名</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>文意替代字</translation>
    </message>
    <message>
        <source>Swash Alternates</source>
        <translation>花飾替代字</translation>
    </message>
    <message>
        <source>Contextual Swash Alternates</source>
        <translation>文意花飾替代字</translation>
    </message>
    <message>
        <source>Default Lower Case</source>
        <translation>預設小寫</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>特小型大寫字</translation>
    </message>
    <message>
        <source>Default Upper Case</source>
        <translation>預設大寫</translation>
    </message>
    <message>
        <source>Half-Width CJK Roman</source>
        <translation>半形 CJK 羅馬字</translation>
    </message>
    <message>
        <source>Proportional CJK Roman</source>
        <translation>比例寬 CJK 羅馬字</translation>
    </message>
    <message>
        <source>Default CJK Roman</source>
        <translation>預設 CJK 羅馬字</translation>
    </message>
    <message>
        <source>Full-Width CJK Roman</source>
        <translation>全形 CJK 羅馬字</translation>
    </message>
    <message>
        <source>No Stylistic Alternatives</source>
        <translation>無樣式替代字</translation>
    </message>
    <message>
        <source>Stylistic Alternative %1</source>
        <translation>樣式替代字 %1</translation>
    </message>
</context>
<context>
    <name>FeatureTagNames</name>
    <message>
        <source>Access All Alternates</source>
        <translation>所有替代字</translation>
    </message>
    <message>
        <source>Above-Base Forms</source>
        <translation>基字上方字形</translation>
    </message>
    <message>
        <source>Above-Base Mark Positioning</source>
        <translation>基字上方記號定位</translation>
    </message>
    <message>
        <source>Above-Base Substitutions</source>
        <translation>基字上方替代</translation>
    </message>
    <message>
        <source>Alternative Fractions</source>
        <translation>替代分數</translation>
    </message>
    <message>
        <source>Akhand</source>
        <translation>Akhand</translation>
    </message>
    <message>
        <source>Below-Base Forms</source>
        <translation>基字下方字形</translation>
    </message>
    <message>
        <source>Below-Base Mark Positioning</source>
        <translation>基字下方記號定位</translation>
    </message>
    <message>
        <source>Below-Base Substitutions</source>
        <translation>基字下方替代</translation>
    </message>
    <message>
        <source>Petite Capitals From Capitals</source>
        <translation>大寫轉特小型大寫字</translation>
    </message>
    <message>
        <source>Small Capitals From Capitals</source>
        <translation>大寫轉小型大寫字</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>文意替代字</translation>
    </message>
    <message>
        <source>Case-Sensitive Forms</source>
        <translation>區分大小寫的字形</translation>
    </message>
    <message>
        <source>Glyph Composition / Decomposition</source>
        <translation>字符合成／分解</translation>
    </message>
    <message>
        <source>Conjunct Form After Ro</source>
        <translation>Ro 後合字字形</translation>
    </message>
    <message>
        <source>Contextual Half-Width Spacing</source>
        <translation>文意半形間距</translation>
    </message>
    <message>
        <source>Conjunct Forms</source>
        <translation>合字字形</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>文意連字</translation>
    </message>
    <message>
        <source>Centered CJK Punctuation</source>
        <translation>置中 CJK 標點</translation>
    </message>
    <message>
        <source>Capital Spacing</source>
        <translation>大寫字間距</translation>
    </message>
    <message>
        <source>Contextual Swash</source>
        <translation>文意花飾字</translation>
    </message>
    <message>
        <source>Cursive Positioning</source>
        <translation>連寫定位</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>距離</translation>
    </message>
    <message>
        <source>Discretionary Ligatures</source>
        <translation>選擇性連字</translation>
    </message>
    <message>
        <source>Denominators</source>
        <translation>分母</translation>
    </message>
    <message>
        <source>Dotless Forms</source>
        <translation>無點字形</translation>
    </message>
    <message>
        <source>Expert Forms</source>
        <translation>專業字形</translation>
    </message>
    <message>
        <source>Final Glyph on Line Alternates</source>
        <translation>行尾替代字符</translation>
    </message>
    <message>
        <source>Terminal Forms #2</source>
        <translation>字尾字形 #2</translation>
    </message>
    <message>
        <source>Terminal Forms #3</source>
        <translation>字尾字形 #3</translation>
    </message>
    <message>
        <source>Terminal Forms</source>
        <translation>字尾字形</translation>
    </message>
    <message>
        <source>Flattened Accent Forms</source>
        <translation>扁平重音字形</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>分數</translation>
    </message>
    <message>
        <source>Full Widths</source>
        <translation>全形字寬</translation>
    </message>
    <message>
        <source>Half Forms</source>
        <translation>半體字形</translation>
    </message>
    <message>
        <source>Halant Forms</source>
        <translation>Halant 字形</translation>
    </message>
    <message>
        <source>Alternate Half Widths</source>
        <translation>替代半形字寬</translation>
    </message>
    <message>
        <source>Historical Forms</source>
        <translation>歷史字形</translation>
    </message>
    <message>
        <source>Horizontal Kana Alternates</source>
        <translation>橫排假名替代字</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>歷史連字</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>諺文</translation>
    </message>
    <message>
        <source>Hojo Kanji Forms</source>
        <translation>補助漢字字形</translation>
    </message>
    <message>
        <source>Half Widths</source>
        <translation>半形字寬</translation>
    </message>
    <message>
        <source>Initial Forms</source>
        <translation>字首字形</translation>
    </message>
    <message>
        <source>Isolated Forms</source>
        <translation>獨立字形</translation>
    </message>
    <message>
        <source>Italics</source>
        <translation>斜體</translation>
    </message>
    <message>
        <source>Justification Alternates</source>
        <translation>齊行替代字</translation>
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
        <translation>字距微調</translation>
    </message>
    <message>
        <source>Left Bounds</source>
        <translation>左邊界</translation>
    </message>
    <message>
        <source>Standard Ligatures</source>
        <translation>標準連字</translation>
    </message>
    <message>
        <source>Leading Jamo Forms</source>
        <translation>初聲字母字形</translation>
    </message>
    <message>
        <source>Lining Figures</source>
        <translation>齊高數字</translation>
    </message>
    <message>
        <source>Localized Forms</source>
        <translation>在地化字形</translation>
    </message>
    <message>
        <source>Left-to-Right Alternates</source>
        <translation>由左至右替代字</translation>
    </message>
    <message>
        <source>Left-to-Right Mirrored Forms</source>
        <translation>由左至右鏡像字形</translation>
    </message>
    <message>
        <source>Mark Positioning</source>
        <translation>記號定位</translation>
    </message>
    <message>
        <source>Medial Forms #2</source>
        <translation>字中字形 #2</translation>
    </message>
    <message>
        <source>Medial Forms</source>
        <translation>字中字形</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>數學希臘字母</translation>
    </message>
    <message>
        <source>Mark to Mark Positioning</source>
        <translation>記號間定位</translation>
    </message>
    <message>
        <source>Mark Positioning via Substitution</source>
        <translation>以替代進行記號定位</translation>
    </message>
    <message>
        <source>Alternate Annotation Forms</source>
        <translation>替代註記字形</translation>
    </message>
    <message>
        <source>NLC Kanji Forms</source>
        <translation>NLC 漢字字形</translation>
    </message>
    <message>
        <source>Nukta Forms</source>
        <translation>Nukta 字形</translation>
    </message>
    <message>
        <source>Numerators</source>
        <translation>分子</translation>
    </message>
    <message>
        <source>Oldstyle Figures</source>
        <translation>舊式數字</translation>
    </message>
    <message>
        <source>Optical Bounds</source>
        <translation>視覺邊界</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>序數</translation>
    </message>
    <message>
        <source>Ornaments</source>
        <translation>裝飾符號</translation>
    </message>
    <message>
        <source>Proportional Alternate Widths</source>
        <translation>替代比例字寬</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>特小型大寫字</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>比例寬假名</translation>
    </message>
    <message>
        <source>Proportional Figures</source>
        <translation>比例寬數字</translation>
    </message>
    <message>
        <source>Pre-Base Forms</source>
        <translation>基字前字形</translation>
    </message>
    <message>
        <source>Pre-Base Substitutions</source>
        <translation>基字前替代</translation>
    </message>
    <message>
        <source>Post-Base Forms</source>
        <translation>基字後字形</translation>
    </message>
    <message>
        <source>Post-Base Substitutions</source>
        <translation>基字後替代</translation>
    </message>
    <message>
        <source>Proportional Widths</source>
        <translation>比例字寬</translation>
    </message>
    <message>
        <source>Quarter Widths</source>
        <translation>四分之一字寬</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>隨機</translation>
    </message>
    <message>
        <source>Required Contextual Alternates</source>
        <translation>必要文意替代字</translation>
    </message>
    <message>
        <source>Rakar Forms</source>
        <translation>Rakar 字形</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>必要連字</translation>
    </message>
    <message>
        <source>Reph Form</source>
        <translation>Reph 字形</translation>
    </message>
    <message>
        <source>Right Bounds</source>
        <translation>右邊界</translation>
    </message>
    <message>
        <source>Right-to-Left Alternates</source>
        <translation>由右至左替代字</translation>
    </message>
    <message>
        <source>Right-to-Left Mirrored Forms</source>
        <translation>由右至左鏡像字形</translation>
    </message>
    <message>
        <source>Ruby Notation Forms</source>
        <translation>旁註字形</translation>
    </message>
    <message>
        <source>Required Variation Alternates</source>
        <translation>必要可變替代字</translation>
    </message>
    <message>
        <source>Stylistic Alternates</source>
        <translation>樣式替代字</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>科學下標</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>光學尺寸</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>小型大寫字</translation>
    </message>
    <message>
        <source>Simplified Forms</source>
        <translation>簡化字形</translation>
    </message>
    <message>
        <source>Math Script-Style Alternates</source>
        <translation>數學上下標樣式替代字</translation>
    </message>
    <message>
        <source>Stretching Glyph Decomposition</source>
        <translation>伸展字符分解</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>下標</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>上標</translation>
    </message>
    <message>
        <source>Swash</source>
        <translation>花飾字</translation>
    </message>
    <message>
        <source>Titling</source>
        <translation>標題字</translation>
    </message>
    <message>
        <source>Trailing Jamo Forms</source>
        <translation>終聲字母字形</translation>
    </message>
    <message>
        <source>Traditional Name Forms</source>
        <translation>傳統人名字形</translation>
    </message>
    <message>
        <source>Tabular Figures</source>
        <translation>等寬數字</translation>
    </message>
    <message>
        <source>Traditional Forms</source>
        <translation>傳統字形</translation>
    </message>
    <message>
        <source>Third Widths</source>
        <translation>三分之一字寬</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>單一字高</translation>
    </message>
    <message>
        <source>Alternate Vertical Metrics</source>
        <translation>替代直排度量</translation>
    </message>
    <message>
        <source>Vattu Variants</source>
        <translation>Vattu 變體</translation>
    </message>
    <message>
        <source>Vertical Contextual Half-Width Spacing</source>
        <translation>直排文意半形間距</translation>
    </message>
    <message>
        <source>Vertical Alternates</source>
        <translation>直排替代字</translation>
    </message>
    <message>
        <source>Alternate Vertical Half Metrics</source>
        <translation>替代直排半形度量</translation>
    </message>
    <message>
        <source>Vowel Jamo Forms</source>
        <translation>中聲字母字形</translation>
    </message>
    <message>
        <source>Vertical Kana Alternates</source>
        <translation>直排假名替代字</translation>
    </message>
    <message>
        <source>Vertical Kerning</source>
        <translation>直排字距微調</translation>
    </message>
    <message>
        <source>Proportional Alternate Vertical Metrics</source>
        <translation>替代直排比例度量</translation>
    </message>
    <message>
        <source>Vertical Alternates and Rotation</source>
        <translation>直排替代字與旋轉</translation>
    </message>
    <message>
        <source>Vertical Alternates for Rotation</source>
        <translation>直排旋轉替代字</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>帶斜線的零</translation>
    </message>
    <message>
        <source>Stylistic Set %1</source>
        <translation>樣式集 %1</translation>
    </message>
    <message>
        <source>Character Variant %1</source>
        <translation>字元變體 %1</translation>
    </message>
</context>
<context>
    <name>FeedDownload</name>
    <message>
        <source>cannot read the release feed: %1</source>
        <translation>無法讀取版本資訊：%1</translation>
    </message>
    <message>
        <source>the release server gives no feed: it answers with status %1</source>
        <translation>伺服器未提供版本資訊：回應狀態為 %1</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is no https address</source>
        <translation>版本資訊的位址不是 https 位址</translation>
    </message>
    <message>
        <source>the release feed&apos;s address has a name or password in it</source>
        <translation>版本資訊的位址含有名稱或密碼</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is not secure: it must begin with https</source>
        <translation>版本資訊的位址不安全：必須以 https 開頭</translation>
    </message>
    <message>
        <source>the release server leads to an address that is not secure</source>
        <translation>版本伺服器導向不安全的位址</translation>
    </message>
    <message>
        <source>the release server took too long to answer</source>
        <translation>版本伺服器回應逾時</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>版本資訊太大</translation>
    </message>
    <message>
        <source>the release server leads from one address to the next</source>
        <translation>版本伺服器不斷轉址</translation>
    </message>
</context>
<context>
    <name>FeedUpdaterController</name>
    <message>
        <source>this build has no address of a release feed</source>
        <translation>這個組建沒有版本資訊的位址</translation>
    </message>
    <message>
        <source>the running version is no number</source>
        <translation>執行中的版本不是數字</translation>
    </message>
</context>
<context>
    <name>FilePath</name>
    <message>
        <source>&quot;%1&quot; is no file URL: %2</source>
        <translation>「%1」不是檔案 URL：%2</translation>
    </message>
    <message>
        <source>it does not begin with file:</source>
        <translation>不是以 file: 開頭</translation>
    </message>
    <message>
        <source>it names another host</source>
        <translation>指向其他主機</translation>
    </message>
    <message>
        <source>its path is not absolute</source>
        <translation>路徑不是絕對路徑</translation>
    </message>
    <message>
        <source>it has a query or a fragment</source>
        <translation>含有查詢或片段</translation>
    </message>
    <message>
        <source>it has a broken percent escape</source>
        <translation>含有錯誤的百分號編碼</translation>
    </message>
    <message>
        <source>it contains a NUL</source>
        <translation>含有 NUL</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 不是一般檔案</translation>
    </message>
    <message>
        <source>%1 changed while it was read</source>
        <translation>讀取 %1 時內容已變更</translation>
    </message>
    <message>
        <source>the copy %1 differs from its source</source>
        <translation>副本 %1 與來源不同</translation>
    </message>
</context>
<context>
    <name>FolderCommands</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>FontFile</name>
    <message>
        <source>%1: %2</source>
        <extracomment>A file, and what is wrong with it.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1：無法讀取</translation>
    </message>
    <message>
        <source>%1: has changed while in use</source>
        <translation>%1：使用期間已變更</translation>
    </message>
    <message>
        <source>has neither names nor a character map</source>
        <translation>沒有名稱，也沒有字元對應表</translation>
    </message>
    <message>
        <source>%1: has no face number %2</source>
        <translation>%1：沒有編號 %2 的字型</translation>
    </message>
    <message>
        <source>%1: has no named instance number %2</source>
        <translation>%1：沒有編號 %2 的具名實例</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1：沒有這個檔案</translation>
    </message>
    <message>
        <source>%1: may not be read</source>
        <translation>%1：沒有讀取權限</translation>
    </message>
    <message>
        <source>%1: is a link that leads in a circle</source>
        <translation>%1：是循環的連結</translation>
    </message>
    <message>
        <source>%1: is not a regular file</source>
        <translation>%1：不是一般檔案</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1：無法開啟：%2</translation>
    </message>
    <message>
        <source>%1: is larger than any font</source>
        <translation>%1：大小超過任何字型</translation>
    </message>
    <message>
        <source>is a WOFF web font, which is not read</source>
        <translation>是 WOFF 網頁字型，不支援讀取</translation>
    </message>
    <message>
        <source>is a WOFF2 web font, which is not read</source>
        <translation>是 WOFF2 網頁字型，不支援讀取</translation>
    </message>
    <message>
        <source>is a Type 1 font, which is not read</source>
        <translation>是 Type 1 字型，不支援讀取</translation>
    </message>
    <message>
        <source>is a BDF bitmap font, which is not read</source>
        <translation>是 BDF 點陣字型，不支援讀取</translation>
    </message>
    <message>
        <source>is a PCF bitmap font, which is not read</source>
        <translation>是 PCF 點陣字型，不支援讀取</translation>
    </message>
    <message>
        <source>is compressed, which is not read</source>
        <translation>是壓縮檔，不支援讀取</translation>
    </message>
    <message>
        <source>is not a font</source>
        <translation>不是字型</translation>
    </message>
    <message>
        <source>is a collection without faces</source>
        <translation>是不含字型的字型集合檔</translation>
    </message>
    <message>
        <source>is larger than any font suitcase</source>
        <translation>大小超過任何字型手提箱</translation>
    </message>
    <message>
        <source>is a suitcase without outline fonts</source>
        <translation>是不含外框字型的字型手提箱</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>無法讀取</translation>
    </message>
    <message>
        <source>ends within its header</source>
        <translation>在檔頭內就已結束</translation>
    </message>
    <message>
        <source>holds a face that is not a font</source>
        <translation>其中含有不是字型的資料</translation>
    </message>
    <message>
        <source>has a damaged table directory</source>
        <translation>資料表目錄已損毀</translation>
    </message>
    <message>
        <source>ends within its table directory</source>
        <translation>在資料表目錄內就已結束</translation>
    </message>
    <message>
        <source>is shorter than its header says: %1 lies beyond the end</source>
        <extracomment>%1 is a table of the font, such as &quot;glyf&quot;.</extracomment>
        <translation>比檔頭所示更短：%1 超出結尾</translation>
    </message>
</context>
<context>
    <name>FontFiles</name>
    <message>
        <source>There is no such file.</source>
        <translation>這個檔案不存在。</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>您沒有讀取這個檔案的權限。</translation>
    </message>
    <message>
        <source>This file is too large to be a font.</source>
        <translation>這個檔案太大，不可能是字型。</translation>
    </message>
    <message>
        <source>This file holds no font that Lorva can show.</source>
        <translation>這個檔案沒有 Lorva 能顯示的字型。</translation>
    </message>
    <message>
        <source>This font is damaged and cannot be shown.</source>
        <translation>這款字型已損毀，無法顯示。</translation>
    </message>
    <message>
        <source>This file cannot be read from its disk.</source>
        <translation>無法從磁碟讀取這個檔案。</translation>
    </message>
    <message>
        <source>This font has no name, so no program could offer it.</source>
        <translation>這款字型沒有名稱，因此沒有程式能列出它。</translation>
    </message>
    <message>
        <source>Only files of this computer can be shown.</source>
        <translation>只能顯示這台電腦上的檔案。</translation>
    </message>
    <message>
        <source>So many files cannot be shown at once.</source>
        <translation>檔案太多，無法同時顯示。</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>Some styles are active</source>
        <translation>部分樣式已啟用</translation>
    </message>
    <message>
        <source>Active through the system</source>
        <translation>已由系統啟用</translation>
    </message>
    <message>
        <source>Active, copied to the Fonts folder</source>
        <translation>已啟用，已複製到字型資料夾</translation>
    </message>
    <message>
        <source>Active, registered in place</source>
        <translation>已啟用，已就地註冊</translation>
    </message>
    <message>
        <source>Another font has this file’s name in the Fonts folder</source>
        <translation>字型資料夾中已有另一款字型使用這個檔名</translation>
    </message>
    <message>
        <source>Not Shown</source>
        <translation>未顯示</translation>
    </message>
    <message>
        <source>Font Files</source>
        <translation>字型檔</translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n 款字型</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a folder or a device, not a font file.</source>
        <translation>這是資料夾或裝置，不是字型檔。</translation>
    </message>
</context>
<context>
    <name>FontInspector</name>
    <message>
        <source>License</source>
        <translation>授權</translation>
    </message>
    <message>
        <source>Embedding</source>
        <extracomment>Whether documents may embed the font.</extracomment>
        <translation>嵌入</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Vendor</source>
        <extracomment>Whose web page it is.</extracomment>
        <translation>供應商</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>設計師</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A language, and the characters of it that the font lacks.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>支援</translation>
    </message>
    <message>
        <source>Languages with Missing Characters</source>
        <translation>缺少字元的語言</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Whether a family is switched on.</extracomment>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Whether a family is switched on, and whether the system did it.</extracomment>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Active (System)</source>
        <translation>已啟用（系統）</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>識別資料</translation>
    </message>
    <message>
        <source>Family Name</source>
        <translation>家族名稱</translation>
    </message>
    <message>
        <source>Style Name</source>
        <translation>樣式名稱</translation>
    </message>
    <message>
        <source>Full Name</source>
        <translation>全名</translation>
    </message>
    <message>
        <source>PostScript Name</source>
        <translation>PostScript 名稱</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Whether the family is switched on.</extracomment>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>The file of a font.</extracomment>
        <translation>位置</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The file format of a font.</extracomment>
        <translation>格式</translation>
    </message>
    <message>
        <source>Glyph Count</source>
        <translation>字符數</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Features of a font that belong to no group.</extracomment>
        <translation>其他</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作權</translation>
    </message>
</context>
<context>
    <name>FontInspectorService</name>
    <message>
        <source>Italic</source>
        <extracomment>Axes of variable fonts.</extracomment>
        <translation>斜體</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>光學尺寸</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>傾斜</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>字重</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>字寬</translation>
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
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>FontInstallationService</name>
    <message>
        <source>another program is switching fonts on or off</source>
        <translation>另一個程式正在啟用或停用字型</translation>
    </message>
</context>
<context>
    <name>FontQuizPoster</name>
    <message>
        <source>en</source>
        <extracomment>The language of the translation, such as &quot;de&quot; or &quot;zh_CN&quot;: dates are written in it.</extracomment>
        <translation>zh_TW</translation>
    </message>
    <message>
        <source>MMMM d, yyyy</source>
        <extracomment>How the poster of the quiz writes its date, as &quot;d. MMMM yyyy&quot; or &quot;yyyy年M月d日&quot;; English writes it with ordinals instead.</extracomment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A style of fonts, and how many fonts have it; spoken.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Fonts organized</source>
        <extracomment>A big number stands below it: so many fonts were organized.</extracomment>
        <translation>已整理字型</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles on %1.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%1親手整理為襯線、無襯線、標題、等寬與裝飾等風格。

一切就緒，隨時迎接下一個專案。記得，要做得漂亮。</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles by %1 on %2.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>由 %1 於%2親手整理為襯線、無襯線、標題、等寬與裝飾等風格。

一切就緒，隨時迎接下一個專案。記得，要做得漂亮。</translation>
    </message>
</context>
<context>
    <name>FontScanPhase</name>
    <message>
        <source>Finding fonts…</source>
        <translation>正在尋找字型…</translation>
    </message>
    <message numerus="yes">
        <source>Finding fonts… %1</source>
        <translation>
            <numerusform>正在尋找字型… %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 fonts</source>
        <translation>
            <numerusform>正在掃描字型… %1／%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Identifying fonts… %1 of %2</source>
        <translation>
            <numerusform>正在辨識字型… %1／%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在準備…</translation>
    </message>
</context>
<context>
    <name>FontsFolderEntries</name>
    <message>
        <source>the file named %1 in the Fonts folder is another font than %2</source>
        <translation>字型資料夾中名為 %1 的檔案與 %2 是不同的字型</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>Usage:</source>
        <extracomment>before the ways in which a command is called, in its help</extracomment>
        <translation>用法：</translation>
    </message>
</context>
<context>
    <name>HistoryReport</name>
    <message>
        <source>Activated %1</source>
        <translation>已啟用 %1</translation>
    </message>
    <message>
        <source>Tried to activate %1</source>
        <translation>嘗試啟用 %1</translation>
    </message>
    <message>
        <source>De-activated %1</source>
        <translation>已停用 %1</translation>
    </message>
    <message>
        <source>Tried to de-activate %1</source>
        <translation>嘗試停用 %1</translation>
    </message>
    <message>
        <source>Brought back %1</source>
        <translation>已還原 %1</translation>
    </message>
    <message>
        <source>Tried to bring back %1</source>
        <translation>嘗試還原 %1</translation>
    </message>
    <message>
        <source>Copied to the Fonts folder</source>
        <translation>已複製到字型資料夾</translation>
    </message>
    <message>
        <source>Registered in place</source>
        <translation>已就地註冊</translation>
    </message>
    <message>
        <source>Copies to the Trash, registrations withdrawn</source>
        <translation>副本已移到垃圾桶，註冊已撤銷</translation>
    </message>
    <message>
        <source>Moved to %1</source>
        <translation>已移到 %1</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已移動</translation>
    </message>
    <message>
        <source>De-activation undone</source>
        <translation>已復原停用</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln 個檔案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln were there already</source>
        <translation>
            <numerusform>%Ln 個原已存在</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <extracomment>Files.</extracomment>
        <translation>
            <numerusform>%Ln 個失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left when it was stopped</source>
        <translation>
            <numerusform>中止時剩餘 %Ln 個</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>How fonts were switched on or off, and the numbers of their files.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Activation History</source>
        <translation>啟用記錄</translation>
    </message>
    <message>
        <source>No font was switched on or off yet.</source>
        <translation>尚未啟用或停用過任何字型。</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
</context>
<context>
    <name>JsonReader</name>
    <message>
        <source>unknown value</source>
        <translation>未知的值</translation>
    </message>
    <message>
        <source>the integer is out of range</source>
        <translation>整數超出範圍</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>重複的鍵</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>文件是空的</translation>
    </message>
    <message>
        <source>invalid UTF-8</source>
        <translation>無效的 UTF-8</translation>
    </message>
    <message>
        <source>control character in a string</source>
        <translation>字串中有控制字元</translation>
    </message>
    <message>
        <source>unclosed string</source>
        <translation>字串未結束</translation>
    </message>
    <message>
        <source>broken escape in a string</source>
        <translation>字串中有錯誤的跳脫序列</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>文件太大</translation>
    </message>
    <message>
        <source>malformed JSON</source>
        <translation>JSON 格式錯誤</translation>
    </message>
    <message>
        <source>the value was read already</source>
        <translation>這個值已讀取過</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>巢狀層數過多</translation>
    </message>
    <message>
        <source>expected a string</source>
        <translation>應為字串</translation>
    </message>
    <message>
        <source>expected an integer</source>
        <translation>應為整數</translation>
    </message>
    <message>
        <source>expected a number</source>
        <translation>應為數字</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>應為 true 或 false</translation>
    </message>
    <message>
        <source>broken base64</source>
        <translation>base64 錯誤</translation>
    </message>
    <message>
        <source>expected an array</source>
        <translation>應為陣列</translation>
    </message>
    <message>
        <source>expected an object</source>
        <translation>應為物件</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>A key that must be there, in a JSON document.</extracomment>
        <translation>缺少</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>未讀取任何內容</translation>
    </message>
    <message>
        <source>text after the end</source>
        <translation>結尾後還有文字</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A place in a JSON document, and what is wrong there.</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>--window-size takes WIDTHxHEIGHT in points, for example 1720x920</source>
        <translation>--window-size 須為 WIDTHxHEIGHT，以點為單位，例如 1720x920</translation>
    </message>
    <message>
        <source>--view takes grid or list</source>
        <translation>--view 須為 grid 或 list</translation>
    </message>
    <message>
        <source>--color takes white, black, custom or image</source>
        <translation>--color 須為 white、black、custom 或 image</translation>
    </message>
    <message>
        <source>--sheet takes activate, deactivate, history or settings</source>
        <translation>--sheet 須為 activate、deactivate、history 或 settings</translation>
    </message>
    <message>
        <source>--stage takes text, waterfall or comparison</source>
        <translation>--stage 須為 text、waterfall 或 comparison</translation>
    </message>
    <message>
        <source>--inspector takes features or info</source>
        <translation>--inspector 須為 features 或 info</translation>
    </message>
    <message>
        <source>--quiz takes intro, playing or poster</source>
        <translation>--quiz 須為 intro、playing 或 poster</translation>
    </message>
    <message>
        <source>--welcome takes scene or card</source>
        <translation>--welcome 須為 scene 或 card</translation>
    </message>
    <message>
        <source>--appearance takes light or dark</source>
        <translation>--appearance 須為 light 或 dark</translation>
    </message>
    <message>
        <source>--source takes all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>--source 須為 all、active、inactive、style:ID、collection:NAME、foundry:ID 或 discover</translation>
    </message>
    <message>
        <source>--image takes one of: %1</source>
        <translation>--image 須為下列其中之一：%1</translation>
    </message>
    <message>
        <source>--weight takes a number from 100 to 900</source>
        <translation>--weight 須為 100 到 900 的數字</translation>
    </message>
    <message>
        <source>--point-size takes a positive number of points</source>
        <translation>--point-size 須為正數的點數</translation>
    </message>
    <message>
        <source>add the fonts of a folder for this start (repeatable)</source>
        <translation>這次啟動加入資料夾中的字型（可重複）</translation>
    </message>
    <message>
        <source>start in all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>從 all、active、inactive、style:ID、collection:NAME、foundry:ID 或 discover 開始</translation>
    </message>
    <message>
        <source>start with this text in the search field</source>
        <translation>啟動時在搜尋欄位填入這段文字</translation>
    </message>
    <message>
        <source>start with this family selected</source>
        <translation>啟動時選取這個家族</translation>
    </message>
    <message>
        <source>open this family in the detail view</source>
        <translation>在詳細檢視中開啟這個家族</translation>
    </message>
    <message>
        <source>show it as text, waterfall or comparison there</source>
        <translation>在其中以 text、waterfall 或 comparison 顯示</translation>
    </message>
    <message>
        <source>show its features or info beside it</source>
        <translation>在旁邊顯示特性 (features) 或資訊 (info)</translation>
    </message>
    <message>
        <source>start in the font quiz: its intro, playing or its poster</source>
        <translation>從字型小測驗開始：intro、playing 或 poster</translation>
    </message>
    <message>
        <source>show the welcome, whether it was seen before or not</source>
        <translation>顯示歡迎畫面，無論是否看過</translation>
    </message>
    <message>
        <source>do not show it</source>
        <translation>不顯示歡迎畫面</translation>
    </message>
    <message>
        <source>start in this view</source>
        <translation>以這種檢視方式啟動</translation>
    </message>
    <message>
        <source>start with specimens of this size, in points</source>
        <translation>啟動時的樣張大小，以點為單位</translation>
    </message>
    <message>
        <source>start with specimens of this weight, 100 to 900</source>
        <translation>啟動時的樣張字重，100 到 900</translation>
    </message>
    <message>
        <source>start with white, black or custom colours, or an image</source>
        <translation>啟動時使用 white、black、custom 顏色或 image</translation>
    </message>
    <message>
        <source>start with this background image (--color image)</source>
        <translation>啟動時使用這張背景圖片 (--color image)</translation>
    </message>
    <message>
        <source>start with this image as logo</source>
        <translation>啟動時使用這張圖片作為標誌</translation>
    </message>
    <message>
        <source>start with this sample text</source>
        <translation>啟動時使用這段範例文字</translation>
    </message>
    <message>
        <source>light or dark, whatever the desktop is</source>
        <translation>使用 light 或 dark，不論桌面設定為何</translation>
    </message>
    <message>
        <source>show the window off screen, write its picture as PNG, and quit</source>
        <translation>在畫面外顯示視窗，將其畫面存為 PNG 後結束</translation>
    </message>
    <message>
        <source>size of that picture, in points (default 1720x920, of font files 1160x760)</source>
        <translation>圖片大小，以點為單位（預設 1720x920，字型檔為 1160x760）</translation>
    </message>
    <message>
        <source>open activate, deactivate (for --select), history or settings for it</source>
        <translation>為畫面開啟 activate、deactivate（針對 --select）、history 或 settings</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>顯示版本</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>顯示這份說明</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>未知的引數「%1」</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一個值</translation>
    </message>
    <message>
        <source>If Lorva runs already, its window comes to the front and takes the options over.</source>
        <translation>若 Lorva 已在執行，其視窗會移到最前面並套用這些選項。</translation>
    </message>
    <message>
        <source>QT_SCALE_FACTOR=2 makes the picture twice as dense. QT_LOGGING_RULES=&quot;lorva.*=true&quot; logs.</source>
        <translation>QT_SCALE_FACTOR=2 讓圖片密度加倍。QT_LOGGING_RULES=&quot;lorva.*=true&quot; 會記錄日誌。</translation>
    </message>
    <message>
        <source>LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events.</source>
        <translation>LORVA_TRACE=FILE 以 Chrome 追蹤事件記錄啟動所花的時間。</translation>
    </message>
    <message>
        <source>Usage: lorva [options] [FILE|FOLDER]...</source>
        <extracomment>Options begin with &quot;--&quot;, and words in capitals stand for what is typed after them; both, and the words that an option takes, stay as they are.</extracomment>
        <translation>用法：lorva [選項] [FILE|FOLDER]...</translation>
    </message>
    <message>
        <source>Shows every font of this computer as a live specimen; font files that are given, by path or as a file: address, in a window of their own.</source>
        <translation>以即時樣張顯示這台電腦的所有字型；以路徑或 file: 位址指定的字型檔，則在獨立的視窗中顯示。</translation>
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
        <translation>無法註冊字型：%1</translation>
    </message>
    <message>
        <source>The registration cannot be withdrawn: %1</source>
        <translation>無法撤銷註冊：%1</translation>
    </message>
    <message>
        <source>The font is registered already</source>
        <translation>字型已註冊</translation>
    </message>
    <message>
        <source>The font is not registered</source>
        <translation>字型未註冊</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>不是絕對路徑</translation>
    </message>
    <message>
        <source>something else has the name of its link</source>
        <translation>連結的名稱已被占用</translation>
    </message>
</context>
<context>
    <name>LogoImage</name>
    <message>
        <source>The image could not be kept.</source>
        <translation>無法儲存圖片。</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>Show Logo</source>
        <translation>顯示標誌</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Of a logo, compared with the letters beside it.</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Spacing</source>
        <extracomment>Between a logo and the letters beside it.</extracomment>
        <translation>間距</translation>
    </message>
    <message>
        <source>The logo cannot be read</source>
        <translation>無法讀取標誌</translation>
    </message>
</context>
<context>
    <name>LogoTile</name>
    <message>
        <source>Logo</source>
        <translation>標誌</translation>
    </message>
    <message>
        <source>Choose another image</source>
        <translation>選擇其他圖片</translation>
    </message>
    <message>
        <source>Drop an image here, or click to choose one.</source>
        <translation>將圖片拖放到這裡，或按一下以選擇。</translation>
    </message>
</context>
<context>
    <name>LorvaAppModelFolders</name>
    <message>
        <source>%1 is no UTF-8 text and cannot be kept in the preferences</source>
        <translation>%1 不是 UTF-8 文字，無法存入偏好設定</translation>
    </message>
    <message>
        <source>there is no watched folder with the id %1</source>
        <translation>找不到 id 為 %1 的監看資料夾</translation>
    </message>
</context>
<context>
    <name>OrganizationAlerts</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Delete Collection?</source>
        <translation>要刪除收藏集嗎？</translation>
    </message>
    <message>
        <source>This removes the collection but keeps the fonts on your Mac.</source>
        <translation>這會移除收藏集，但字型仍會保留在這台電腦上。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Hide “%1”?</source>
        <translation>要隱藏「%1」嗎？</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>這會將這家字型廠商從側邊欄隱藏。</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>This Change Is Not Possible</source>
        <translation>無法進行這項變更</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>OrganizationChanges</name>
    <message>
        <source>there is no collection with the id “%1”</source>
        <translation>沒有 id 為「%1」的收藏集</translation>
    </message>
    <message>
        <source>there is a collection with the name “%1” already</source>
        <translation>已有名為「%1」的收藏集</translation>
    </message>
    <message>
        <source>there is a collection with the id “%1” already</source>
        <translation>已有 id 為「%1」的收藏集</translation>
    </message>
    <message>
        <source>there is no style category with the id “%1”</source>
        <translation>沒有 id 為「%1」的風格</translation>
    </message>
    <message>
        <source>there is a style category with the name “%1” already</source>
        <translation>已有名為「%1」的風格</translation>
    </message>
    <message>
        <source>there is a style category with the id “%1” already</source>
        <translation>已有 id 為「%1」的風格</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名稱是空的</translation>
    </message>
    <message>
        <source>the style category “%1” cannot be renamed or deleted</source>
        <translation>無法重新命名或刪除風格「%1」</translation>
    </message>
</context>
<context>
    <name>OrganizationFile</name>
    <message>
        <source>the name is empty</source>
        <translation>名稱是空的</translation>
    </message>
    <message>
        <source>format: expected &quot;%1&quot;</source>
        <translation>format：應為「%1」</translation>
    </message>
    <message>
        <source>version: there is no such version</source>
        <translation>version：沒有這個版本</translation>
    </message>
    <message>
        <source>the file is of version %1, which needs a newer Lorva</source>
        <translation>檔案版本為 %1，需要較新的 Lorva</translation>
    </message>
    <message>
        <source>the organisation takes %1 bytes as a file, and no more than %2 can be imported; the logos in display settings may be too many</source>
        <translation>整理資料存成檔案需 %1 位元組，但最多只能匯入 %2；顯示設定中的標誌可能太多</translation>
    </message>
</context>
<context>
    <name>OrganizationStore</name>
    <message>
        <source>the preferences took no change</source>
        <translation>偏好設定未接受變更</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 文件</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG 圖形</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 圖片</translation>
    </message>
</context>
<context>
    <name>PaneTexts</name>
    <message>
        <source>Active</source>
        <extracomment>A heading: fonts that are switched on for every program.</extracomment>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>A heading: fonts that are not switched on.</extracomment>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A heading: a page that introduces type foundries.</extracomment>
        <translation>探索</translation>
    </message>
    <message>
        <source>All Fonts</source>
        <translation>所有字型</translation>
    </message>
    <message>
        <source>No Inactive Fonts</source>
        <translation>沒有未啟用的字型</translation>
    </message>
    <message>
        <source>Every font in your folders is switched on.</source>
        <translation>資料夾中的字型都已啟用。</translation>
    </message>
    <message>
        <source>Watch a folder to see the fonts in it without switching them on.</source>
        <translation>監看資料夾，無須啟用就能查看其中的字型。</translation>
    </message>
    <message>
        <source>No Fonts Here</source>
        <translation>這裡沒有字型</translation>
    </message>
    <message>
        <source>None of the families that belong here are on this computer.</source>
        <translation>屬於這裡的家族都不在這台電腦上。</translation>
    </message>
    <message>
        <source>An Empty Collection</source>
        <translation>空的收藏集</translation>
    </message>
    <message>
        <source>Drag fonts onto it in the sidebar, or choose it in a font’s menu.</source>
        <translation>將字型拖到側邊欄的收藏集，或在字型的選單中選擇。</translation>
    </message>
    <message>
        <source>No Active Fonts</source>
        <translation>沒有已啟用的字型</translation>
    </message>
    <message>
        <source>Fonts that every program can use appear here.</source>
        <translation>所有程式都能使用的字型會顯示在這裡。</translation>
    </message>
    <message>
        <source>No Fonts of This Style</source>
        <translation>沒有這種風格的字型</translation>
    </message>
    <message>
        <source>Choose the style in a font’s menu, or drag fonts onto it in the sidebar.</source>
        <translation>在字型的選單中選擇風格，或將字型拖到側邊欄的風格上。</translation>
    </message>
    <message>
        <source>None of this foundry’s families are on this computer.</source>
        <translation>這家字型廠商的家族都不在這台電腦上。</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>沒有字型</translation>
    </message>
    <message>
        <source>Neither this system nor your folders hold a font that can be read.</source>
        <translation>系統與您的資料夾中都沒有可讀取的字型。</translation>
    </message>
    <message>
        <source>Scan Cancelled</source>
        <translation>已取消掃描</translation>
    </message>
    <message>
        <source>Press F5 to look for the fonts of this system and of your folders again.</source>
        <translation>按 F5 重新尋找系統與資料夾中的字型。</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>There is nothing to export</source>
        <translation>沒有可匯出的內容</translation>
    </message>
    <message>
        <source>The page is too large for a file</source>
        <translation>頁面太大，無法存成檔案</translation>
    </message>
    <message>
        <source>The page is too large for a PNG; a PDF or SVG can hold it</source>
        <translation>頁面太大，無法存成 PNG；可改存為 PDF 或 SVG</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>無法編碼圖片</translation>
    </message>
    <message>
        <source>the picture does not fit into memory</source>
        <translation>記憶體容納不下這張圖片</translation>
    </message>
    <message>
        <source>%1: the name of a picture ends in .png, .svg or .pdf</source>
        <translation>%1：圖片名稱須以 .png、.svg 或 .pdf 結尾</translation>
    </message>
    <message>
        <source>%1: refusing to write over a font file</source>
        <translation>%1：拒絕覆寫字型檔</translation>
    </message>
</context>
<context>
    <name>PreferenceDatabase</name>
    <message>
        <source>the file cannot be written</source>
        <translation>無法寫入檔案</translation>
    </message>
    <message>
        <source>another process is moving a damaged file</source>
        <translation>另一個處理程序正在移動損毀的檔案</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>資料庫已損毀</translation>
    </message>
</context>
<context>
    <name>PreferenceFile</name>
    <message>
        <source>%1: %2</source>
        <extracomment>A file, and what is wrong with it.</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Specimen</source>
        <translation>樣張</translation>
    </message>
</context>
<context>
    <name>RecordsJson</name>
    <message>
        <source>%1 is no colour mode</source>
        <translation>%1 不是顏色模式</translation>
    </message>
</context>
<context>
    <name>ReleaseFeed</name>
    <message>
        <source>the release feed cannot be read: %1</source>
        <translation>無法讀取版本資訊：%1</translation>
    </message>
    <message>
        <source>version: expected numbers with dots between them</source>
        <translation>version：應為以點分隔的數字</translation>
    </message>
    <message>
        <source>date: expected a day such as 2026-11-22</source>
        <translation>date：應為日期，例如 2026-11-22</translation>
    </message>
    <message>
        <source>page: expected an https address</source>
        <translation>page：應為 https 位址</translation>
    </message>
    <message>
        <source>the release feed is made for a newer Lorva: its format is %1, not %2</source>
        <translation>版本資訊適用於較新的 Lorva：格式為 %1，而非 %2</translation>
    </message>
    <message>
        <source>the release feed is about another product</source>
        <translation>版本資訊屬於其他產品</translation>
    </message>
    <message>
        <source>the release feed&apos;s key is not 32 bytes in Base64</source>
        <translation>版本資訊的金鑰不是 Base64 編碼的 32 位元組</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>版本資訊太大</translation>
    </message>
    <message>
        <source>the release feed is not signed by the makers of Lorva</source>
        <translation>版本資訊未經 Lorva 開發者簽署</translation>
    </message>
</context>
<context>
    <name>Restoration</name>
    <message>
        <source>It is not in the Trash any more</source>
        <translation>已不在垃圾桶中</translation>
    </message>
    <message>
        <source>Another file has taken its place</source>
        <translation>原位置已有其他檔案</translation>
    </message>
</context>
<context>
    <name>RunLock</name>
    <message>
        <source>cannot lock %1: another process holds it</source>
        <translation>無法鎖定 %1：已被另一個處理程序鎖定</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 不是一般檔案</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到檔案</translation>
    </message>
    <message>
        <source>the file&apos;s path is no UTF-8 text</source>
        <translation>檔案路徑不是 UTF-8 文字</translation>
    </message>
</context>
<context>
    <name>SafeImage</name>
    <message>
        <source>The picture has too many pixels to be read</source>
        <translation>圖片像素過多，無法讀取</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read</source>
        <translation>圖片已損毀，無法讀取</translation>
    </message>
    <message>
        <source>This is no picture in a format that can be read (PNG, JPEG, GIF, WebP, BMP or SVG)</source>
        <translation>這不是可讀取格式的圖片（PNG、JPEG、GIF、WebP、BMP 或 SVG）</translation>
    </message>
    <message>
        <source>Pictures in this format need an addition to the desktop’s toolkit that is not installed</source>
        <translation>這種格式的圖片需要桌面工具組的附加元件，但尚未安裝</translation>
    </message>
    <message>
        <source>The file is too large to be read as a picture</source>
        <translation>檔案太大，無法作為圖片讀取</translation>
    </message>
    <message>
        <source>no room for a picture</source>
        <translation>沒有空間容納圖片</translation>
    </message>
    <message>
        <source>The drawing is damaged and cannot be read</source>
        <translation>圖形已損毀，無法讀取</translation>
    </message>
    <message>
        <source>The drawing is too complicated to be shown</source>
        <translation>圖形過於複雜，無法顯示</translation>
    </message>
    <message>
        <source>no memory for the drawing</source>
        <translation>記憶體不足，無法繪製圖形</translation>
    </message>
</context>
<context>
    <name>SampleTextPanel</name>
    <message>
        <source>Reset Look</source>
        <translation>重設外觀</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>範例文字</translation>
    </message>
    <message>
        <source>Blank: a sentence for each script</source>
        <translation>留白：每種文字系統各用一句</translation>
    </message>
    <message>
        <source>Size, weight, colors, logo and text as they were at first</source>
        <translation>將大小、字重、顏色、標誌與文字恢復為最初的設定</translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Latin</source>
        <extracomment>Sample texts in this script.</extracomment>
        <translation>拉丁文</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希臘文</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里爾文</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯來文</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>天城文</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓文</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁體中文</translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>“%1” is not there.</source>
        <translation>「%1」不存在。</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>「%1」不是資料夾。</translation>
    </message>
    <message>
        <source>You do not have permission to look into “%1”.</source>
        <translation>您沒有檢視「%1」內容的權限。</translation>
    </message>
    <message>
        <source>“%1” has a name that is not valid text, so it cannot be remembered.</source>
        <translation>「%1」的名稱不是有效文字，因此無法記住。</translation>
    </message>
    <message>
        <source>“%1” could not be looked at.</source>
        <translation>無法檢視「%1」。</translation>
    </message>
    <message>
        <source>Scanning fonts…</source>
        <translation>正在掃描字型…</translation>
    </message>
    <message>
        <source>No new fonts added</source>
        <translation>沒有加入新字型</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t find any new fonts in the selected location.</source>
        <translation>Lorva 在選取的位置沒有找到新字型。</translation>
    </message>
    <message numerus="yes">
        <source>Added %1 fonts</source>
        <translation>
            <numerusform>已加入 %1 款字型</numerusform>
        </translation>
    </message>
    <message>
        <source>You can find them in your library.</source>
        <translation>您可以在字型庫中找到這些字型。</translation>
    </message>
    <message>
        <source>Choose one or more folders of font files to include in your library.</source>
        <translation>選擇一個或多個含有字型檔的資料夾，納入字型庫。</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>監看</translation>
    </message>
    <message numerus="yes">
        <source>%1 more folders could not be added.</source>
        <translation>
            <numerusform>另有 %1 個資料夾無法加入。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SidebarActions</name>
    <message>
        <source>New Collection</source>
        <translation>新增收藏集</translation>
    </message>
</context>
<context>
    <name>SidebarTree</name>
    <message>
        <source>Library</source>
        <translation>字型庫</translation>
    </message>
    <message>
        <source>Styles</source>
        <extracomment>The style categories of fonts: Serif, Script and so on.</extracomment>
        <translation>風格</translation>
    </message>
    <message>
        <source>Foundries</source>
        <translation>字型廠商</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>收藏集</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>風格</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>字型廠商</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>收藏集</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Every font there is, in the sidebar.</extracomment>
        <translation>全部</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Fonts that are switched on for every program, in the sidebar.</extracomment>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Fonts that are not switched on, in the sidebar.</extracomment>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A page that introduces type foundries, in the sidebar.</extracomment>
        <translation>探索</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>型錄</translation>
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
        <translation>未命名</translation>
    </message>
</context>
<context>
    <name>StyleActivations</name>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>So many styles, at the end of a list of their names.</extracomment>
        <translation>
            <numerusform>另 %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleCategories</name>
    <message>
        <source>Serif</source>
        <translation>襯線</translation>
    </message>
    <message>
        <source>Sans-Serif</source>
        <translation>無襯線</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>A style of fonts: those for large sizes.</extracomment>
        <translation>標題</translation>
    </message>
    <message>
        <source>Mono</source>
        <extracomment>A style of fonts: those whose letters are all of one width.</extracomment>
        <translation>等寬</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>A style of fonts: those that look like handwriting.</extracomment>
        <translation>手寫</translation>
    </message>
    <message>
        <source>Decorative</source>
        <extracomment>A style of fonts.</extracomment>
        <translation>裝飾</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>cannot empty %1: %2</source>
        <translation>無法清空 %1：%2</translation>
    </message>
    <message>
        <source>cannot empty the trace %1: %2</source>
        <extracomment>The trace says where the program spent its time.</extracomment>
        <translation>無法清空追蹤檔 %1：%2</translation>
    </message>
    <message>
        <source>cannot find %1: %2</source>
        <translation>找不到 %1：%2</translation>
    </message>
    <message>
        <source>cannot lock %1: %2</source>
        <translation>無法鎖定 %1：%2</translation>
    </message>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>無法檢視 %1：%2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>無法建立 %1：%2</translation>
    </message>
    <message>
        <source>cannot move %1: %2</source>
        <translation>無法移動 %1：%2</translation>
    </message>
    <message>
        <source>cannot move to the Trash %1: %2</source>
        <translation>無法將 %1 移到垃圾桶：%2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>cannot remove %1: %2</source>
        <translation>無法移除 %1：%2</translation>
    </message>
    <message>
        <source>cannot take from the Trash %1: %2</source>
        <translation>無法從垃圾桶取回 %1：%2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>無法在 %1 中寫入：%2</translation>
    </message>
    <message>
        <source>cannot write the trace %1: %2</source>
        <translation>無法寫入追蹤檔 %1：%2</translation>
    </message>
</context>
<context>
    <name>Trace</name>
    <message>
        <source>cannot write the trace %1: not a regular file</source>
        <translation>無法寫入追蹤檔 %1：不是一般檔案</translation>
    </message>
</context>
<context>
    <name>UndoableDeactivation</name>
    <message>
        <source>De-activate %1</source>
        <translation>停用 %1</translation>
    </message>
</context>
<context>
    <name>UpdateAlerts</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Details: %1.</source>
        <translation>詳細資料：%1。</translation>
    </message>
    <message>
        <source>Lorva Couldn’t Check for Updates</source>
        <translation>Lorva 無法檢查更新</translation>
    </message>
    <message>
        <source>The server that announces new versions can’t be reached. Check your internet connection, then try again.</source>
        <translation>無法連線到發布新版本的伺服器。請檢查網際網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>The server that announces new versions took too long to answer. Try again in a while.</source>
        <translation>發布新版本的伺服器回應逾時。請稍後再試。</translation>
    </message>
    <message>
        <source>The server that announces new versions has none to announce right now. Try again in a while.</source>
        <translation>發布新版本的伺服器目前沒有可發布的資訊。請稍後再試。</translation>
    </message>
    <message>
        <source>The connection to the server that announces new versions is not secure, so nothing was read from it. If you are on a public network, try again on another one.</source>
        <translation>與發布新版本的伺服器之間的連線不安全，因此未讀取任何內容。若您使用的是公用網路，請換個網路再試一次。</translation>
    </message>
    <message>
        <source>The answer does not come from the makers of Lorva, so it was not believed. Try again on another network.</source>
        <translation>回應並非來自 Lorva 的開發者，因此未予採信。請換個網路再試一次。</translation>
    </message>
    <message>
        <source>New versions are announced in a way that this version is too old to understand. Look for a newer one where you got Lorva.</source>
        <translation>這個版本太舊，無法解讀新版本的發布方式。請到您取得 Lorva 的地方尋找較新的版本。</translation>
    </message>
    <message>
        <source>The server announces another program. Look for a newer version where you got Lorva.</source>
        <translation>伺服器發布的是其他程式。請到您取得 Lorva 的地方尋找較新的版本。</translation>
    </message>
    <message>
        <source>The answer can’t be understood. Some networks answer in the server’s place until you sign in: open a web page, then try again.</source>
        <translation>無法解讀回應。有些網路在您登入前會代替伺服器回應：請開啟任一網頁，然後再試一次。</translation>
    </message>
    <message>
        <source>Version %1 was released on %2. You have version %3.</source>
        <translation>版本 %1 已於 %2 發布。您使用的是版本 %3。</translation>
    </message>
    <message>
        <source>Lorva %1 Is Available</source>
        <translation>Lorva %1 已推出</translation>
    </message>
    <message>
        <source>Open Release Page</source>
        <translation>開啟版本頁面</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>暫時不要</translation>
    </message>
    <message>
        <source>You’re Up to Date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>There is no newer version than yours, Lorva %1.</source>
        <translation>沒有比您的 Lorva %1 更新的版本。</translation>
    </message>
    <message>
        <source>Updates Come with Your System</source>
        <translation>更新由系統提供</translation>
    </message>
    <message>
        <source>This copy of Lorva does not look for new versions by itself: your system’s software updates bring new versions.</source>
        <translation>這份 Lorva 不會自行尋找新版本：新版本由系統的軟體更新提供。</translation>
    </message>
    <message>
        <source>This copy of Lorva was not told properly where new versions are announced. Your system’s software updates, or the place where you got Lorva, bring new versions.</source>
        <translation>這份 Lorva 未正確設定新版本的發布位置。新版本由系統的軟體更新，或您取得 Lorva 的地方提供。</translation>
    </message>
</context>
<context>
    <name>WatchedFolderStore</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是資料夾</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 不是一般檔案</translation>
    </message>
    <message>
        <source>%1 cannot be made: a file has that name</source>
        <translation>無法建立 %1：已有同名檔案</translation>
    </message>
</context>
<context>
    <name>WindowPicture</name>
    <message>
        <source>the picture could not be encoded</source>
        <translation>無法編碼圖片</translation>
    </message>
</context>
<context>
    <name>Withdrawal</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是資料夾</translation>
    </message>
    <message>
        <source>%1 lies in a Fonts folder, where fonts are active</source>
        <translation>%1 位於字型資料夾中，其中的字型都會啟用</translation>
    </message>
</context>
<context>
    <name>lorva</name>
    <message>
        <source>no display to open a window on; start it in a desktop session, or make a picture with --screenshot FILE</source>
        <translation>沒有可開啟視窗的顯示器；請在桌面工作階段中啟動，或使用 --screenshot FILE 產生圖片</translation>
    </message>
    <message>
        <source>%1; see lorva --help</source>
        <translation>%1；請參閱 lorva --help</translation>
    </message>
</context>
<context>
    <name>lorva::AxisRow</name>
    <message>
        <source>%1, value</source>
        <extracomment>The value of an axis of a variable font, such as Weight; spoken.</extracomment>
        <translation>%1，值</translation>
    </message>
</context>
<context>
    <name>lorva::BarDisplayControls</name>
    <message>
        <source>Logo</source>
        <translation>標誌</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>A logo is shown.</source>
        <translation>已顯示標誌。</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>自訂顏色</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserCollectionView</name>
    <message>
        <source>Fonts</source>
        <translation>字型</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserEmptyStateView</name>
    <message>
        <source>Watch Folder…</source>
        <translation>監看資料夾…</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>沒有結果</translation>
    </message>
    <message>
        <source>No fonts match “%1”.</source>
        <translation>沒有符合「%1」的字型。</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserTopBar</name>
    <message>
        <source>Size and Weight</source>
        <translation>大小與字重</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>範例文字</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>How the fonts are shown, as a noun; spoken.</extracomment>
        <translation>檢視方式</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>格狀</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>清單</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterCellsView</name>
    <message>
        <source>Characters</source>
        <translation>字元</translation>
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
        <translation>字元或字符</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>字元</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>字符</translation>
    </message>
    <message numerus="yes">
        <source>%1 found</source>
        <extracomment>Characters or glyphs.</extracomment>
        <translation>
            <numerusform>找到 %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 glyphs</source>
        <translation>
            <numerusform>%1 個字符</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 個字元</numerusform>
        </translation>
    </message>
    <message>
        <source>No Glyphs Found</source>
        <translation>找不到字符</translation>
    </message>
    <message>
        <source>No Characters Found</source>
        <translation>找不到字元</translation>
    </message>
    <message>
        <source>This face has no glyphs.</source>
        <translation>這款字型沒有字符。</translation>
    </message>
    <message>
        <source>This face has no characters.</source>
        <translation>這款字型沒有字元。</translation>
    </message>
    <message>
        <source>Copy Character</source>
        <translation>複製字元</translation>
    </message>
    <message>
        <source>Copy Code Point</source>
        <translation>複製碼位</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>複製名稱</translation>
    </message>
    <message>
        <source>Copy Glyph Name</source>
        <translation>複製字符名稱</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>加入字盤</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>已複製 %1</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterPopoverViewController</name>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>沒有字元對應到這個字符。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The kind of a character, and the block that it belongs to.</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Code Point</source>
        <translation>碼位</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Glyph Name</source>
        <translation>字符名稱</translation>
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
        <translation>複製</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>加入字盤</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterTrayView</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Tray: %1</source>
        <extracomment>Characters that were collected, to be copied together.</extracomment>
        <translation>字盤：%1</translation>
    </message>
</context>
<context>
    <name>lorva::ColorChooser</name>
    <message>
        <source>Color Code</source>
        <translation>色碼</translation>
    </message>
</context>
<context>
    <name>lorva::ColorModeChips</name>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>自訂顏色</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>背景圖片</translation>
    </message>
</context>
<context>
    <name>lorva::ComparisonView</name>
    <message>
        <source>Add Family…</source>
        <translation>加入家族…</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>Beside</source>
        <extracomment>How the compared families are arranged: beside each other.</extracomment>
        <translation>並排</translation>
    </message>
    <message>
        <source>Overlaid</source>
        <extracomment>How the compared families are arranged: one over the other.</extracomment>
        <translation>疊合</translation>
    </message>
    <message>
        <source>Match</source>
        <extracomment>What the compared families have in common: their size or their x-height; spoken.</extracomment>
        <translation>對齊基準</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>相同大小</translation>
    </message>
    <message>
        <source>Same x-Height</source>
        <translation>相同 x 字高</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>Add Family</source>
        <translation>加入家族</translation>
    </message>
</context>
<context>
    <name>lorva::DetailPreviewView</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
</context>
<context>
    <name>lorva::DetailTopBar</name>
    <message>
        <source>Text</source>
        <extracomment>Shows the family as one text that can be edited.</extracomment>
        <translation>文字</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <extracomment>Shows the same text in ever smaller sizes.</extracomment>
        <translation>字級階梯</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Shows several families together.</extracomment>
        <translation>比較</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>上一個家族</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>下一個家族</translation>
    </message>
    <message>
        <source>Size, Weight, Letter Spacing</source>
        <translation>大小、字重、字距</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>檢閱器</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Search Characters</source>
        <translation>搜尋字元</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverFoundryItem</name>
    <message>
        <source>Visit %1</source>
        <translation>前往 %1</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverLinkButton</name>
    <message>
        <source>Visit</source>
        <extracomment>Opens the web page of a foundry.</extracomment>
        <translation>前往</translation>
    </message>
    <message>
        <source>Open Website</source>
        <translation>開啟網站</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverViewController</name>
    <message>
        <source>Discover</source>
        <translation>探索</translation>
    </message>
    <message>
        <source>Type Foundries</source>
        <translation>字型廠商</translation>
    </message>
</context>
<context>
    <name>lorva::FamilyPicker</name>
    <message>
        <source>Families</source>
        <translation>家族</translation>
    </message>
    <message>
        <source>No Families</source>
        <translation>沒有家族</translation>
    </message>
    <message>
        <source>Search Families</source>
        <translation>搜尋家族</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The group of a font&apos;s feature, and what the feature does; spoken.</extracomment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureTip</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A feature of a font, and its tag; spoken.</extracomment>
        <translation>%1，%2</translation>
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
            <numerusform>%Ln 個樣式</numerusform>
        </translation>
    </message>
    <message>
        <source>System</source>
        <translation>系統</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesBar</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <translation>字級階梯</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>檢閱器</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesFooter</name>
    <message>
        <source>Files That Failed…</source>
        <translation>失敗的檔案…</translation>
    </message>
    <message>
        <source>Show in Lorva</source>
        <translation>在 Lorva 中顯示</translation>
    </message>
    <message>
        <source>Activate All…</source>
        <translation>全部啟用…</translation>
    </message>
    <message>
        <source>De-activate…</source>
        <translation>停用…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>啟用其餘樣式…</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>啟用…</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesList</name>
    <message>
        <source>Fonts in the Files</source>
        <translation>檔案中的字型</translation>
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
        <translation>正在讀取檔案</translation>
    </message>
    <message>
        <source>The fonts will be here in a moment.</source>
        <translation>字型稍後就會顯示在這裡。</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>沒有字型</translation>
    </message>
    <message>
        <source>None of these files could be opened.</source>
        <translation>這些檔案都無法開啟。</translation>
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
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
</context>
<context>
    <name>lorva::FontInspectorViewController</name>
    <message>
        <source>Inspector</source>
        <translation>檢閱器</translation>
    </message>
    <message>
        <source>Features</source>
        <extracomment>The OpenType features of a font.</extracomment>
        <translation>特性</translation>
    </message>
    <message>
        <source>Info</source>
        <extracomment>Facts about a font.</extracomment>
        <translation>資訊</translation>
    </message>
</context>
<context>
    <name>lorva::FontInstallSheetController</name>
    <message>
        <source>Choose how to activate this font family in macOS. Both methods make it available in every app on your Mac.</source>
        <translation>選擇啟用這個字型家族的方式。兩種方式都能讓這台電腦的所有應用程式使用它。</translation>
    </message>
    <message>
        <source>Copy to Fonts Folder</source>
        <extracomment>A way to activate fonts.</extracomment>
        <translation>複製到字型資料夾</translation>
    </message>
    <message>
        <source>Copies the font files into your user Fonts folder. Works even if the originals move or go offline.</source>
        <translation>將字型檔複製到您的個人字型資料夾。即使原始檔案移動或離線也能使用。</translation>
    </message>
    <message>
        <source>Register in Place</source>
        <extracomment>A way to activate fonts: their files stay where they are.</extracomment>
        <translation>就地註冊</translation>
    </message>
    <message>
        <source>Activates the font from its current location, but deactivates if the source moves.</source>
        <translation>從目前的位置啟用字型；若來源移動，字型就會停用。</translation>
    </message>
    <message>
        <source>Remember this choice (change later in Settings)</source>
        <translation>記住這個選擇（之後可在「設定」中變更）</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>lorva::FontPreviewNSView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>無法載入「%1」，改以系統字型顯示。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCardView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>無法載入「%1」，改以系統字型顯示。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCategoryView</name>
    <message numerus="yes">
        <source>%1, key %2, %3 fonts</source>
        <extracomment>A style of fonts, the key that chooses it, and how many fonts have it; spoken.</extracomment>
        <translation>
            <numerusform>%1，按鍵 %2，%3 款字型</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCompletionPosterView</name>
    <message>
        <source>Save as Picture…</source>
        <translation>儲存為圖片…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Save as Picture</source>
        <translation>儲存為圖片</translation>
    </message>
    <message>
        <source>Organized Fonts</source>
        <translation>已整理的字型</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizIntroView</name>
    <message>
        <source>Every font is already categorized.</source>
        <translation>所有字型都已分類。</translation>
    </message>
    <message>
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. Don&apos;t worry, you can change the style for a font later.</source>
        <translation>為每款字型選擇一種風格，字型就會出現在該風格的資料夾中。別擔心，之後隨時可以變更字型的風格。</translation>
    </message>
    <message numerus="yes">
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</source>
        <extracomment>The number of forms goes by %2.</extracomment>
        <translation>
            <numerusform>為每款字型選擇一種風格，字型就會出現在該風格的資料夾中。我們已為您分類了 %1 款，還有 %2 款需要您過目。別擔心，之後隨時可以變更字型的風格。</numerusform>
        </translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Begins the quiz.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Let&apos;s organize your fonts</source>
        <translation>來整理字型吧</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizStageView</name>
    <message>
        <source>Card %1 of %2. Press 1 to 6 to choose its style, Space to skip it, Backspace to take the last choice back.</source>
        <translation>第 %1 張卡片，共 %2 張。按 1 到 6 選擇風格，按空白鍵略過，按 Backspace 鍵撤回上一個選擇。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The card that is shown, and how many there are.</extracomment>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>Space skips a card. Backspace takes the last one back.</source>
        <translation>按空白鍵略過卡片。按 Backspace 鍵撤回上一張。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizViewController</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Font Quiz</source>
        <translation>字型小測驗</translation>
    </message>
    <message>
        <source>“%1” could not be put into %2: %3</source>
        <translation>無法將「%1」歸入 %2：%3</translation>
    </message>
    <message>
        <source>The last choice could not be taken back: %1</source>
        <translation>無法撤回上一個選擇：%1</translation>
    </message>
</context>
<context>
    <name>lorva::FontsSettingsTab</name>
    <message>
        <source>Watch Folder</source>
        <translation>監看資料夾</translation>
    </message>
    <message>
        <source>Remove Folder</source>
        <translation>移除資料夾</translation>
    </message>
    <message>
        <source>When activating fonts:</source>
        <translation>啟用字型時：</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>每次詢問</translation>
    </message>
    <message>
        <source>Always copy to Fonts folder</source>
        <translation>一律複製到字型資料夾</translation>
    </message>
    <message>
        <source>Always register in place</source>
        <translation>一律就地註冊</translation>
    </message>
    <message>
        <source>Watched Folders</source>
        <translation>監看的資料夾</translation>
    </message>
    <message>
        <source>Lorva scans these folders for font files and includes them in your library without installing them on your Mac.</source>
        <translation>Lorva 會掃描這些資料夾中的字型檔並納入字型庫，但不會安裝到這台電腦上。</translation>
    </message>
    <message>
        <source>Activating Fonts</source>
        <translation>啟用字型</translation>
    </message>
    <message>
        <source>Copying duplicates font files into your user Fonts folder. Registering activates fonts from their current location, but they deactivate if the source moves.</source>
        <translation>「複製」會將字型檔複製一份到您的個人字型資料夾。「註冊」會從目前的位置啟用字型，但若來源移動，字型就會停用。</translation>
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
        <translation>「%1」已不存在</translation>
    </message>
    <message>
        <source>“%1” may not be read</source>
        <translation>沒有讀取「%1」的權限</translation>
    </message>
    <message>
        <source>“%1” is no file</source>
        <translation>「%1」不是檔案</translation>
    </message>
    <message>
        <source>“%1” is too large</source>
        <translation>「%1」太大</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>無法讀取「%1」</translation>
    </message>
    <message>
        <source>Choose an Image</source>
        <translation>選擇圖片</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>所有檔案</translation>
    </message>
    <message>
        <source>What was dropped is no picture</source>
        <translation>拖放的內容不是圖片</translation>
    </message>
</context>
<context>
    <name>lorva::ImageThumbnail</name>
    <message>
        <source>Delete removes it.</source>
        <translation>按 Delete 鍵可移除。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>lorva::IndexingStatus</name>
    <message>
        <source>Dismiss</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>複製</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>在檔案管理程式中顯示</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>在瀏覽器中開啟</translation>
    </message>
</context>
<context>
    <name>lorva::InfoValueText</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
</context>
<context>
    <name>lorva::InlineEditHandler</name>
    <message>
        <source>Sample text</source>
        <translation>範例文字</translation>
    </message>
</context>
<context>
    <name>lorva::InspectorFeaturesView</name>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Reset Features and Axes</source>
        <translation>重設特性與軸</translation>
    </message>
    <message>
        <source>Axes</source>
        <extracomment>The variation axes of a font, such as Weight.</extracomment>
        <translation>軸</translation>
    </message>
    <message>
        <source>No OpenType Features</source>
        <translation>沒有 OpenType 特性</translation>
    </message>
    <message>
        <source>This font doesn&apos;t expose any OpenType features.</source>
        <translation>這款字型未提供任何 OpenType 特性。</translation>
    </message>
</context>
<context>
    <name>lorva::InstanceButton</name>
    <message>
        <source>Custom</source>
        <extracomment>Settings of a variable font that are none of its named instances.</extracomment>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Instance: %1</source>
        <translation>實例：%1</translation>
    </message>
    <message>
        <source>Instance</source>
        <extracomment>A named setting of a variable font, such as Condensed Bold.</extracomment>
        <translation>實例</translation>
    </message>
</context>
<context>
    <name>lorva::LineField</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaAppModel</name>
    <message>
        <source>New Collection</source>
        <translation>新增收藏集</translation>
    </message>
    <message>
        <source>Rename Collection</source>
        <translation>重新命名收藏集</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>刪除收藏集</translation>
    </message>
    <message>
        <source>Add to Collection</source>
        <translation>加入收藏集</translation>
    </message>
    <message>
        <source>Remove from Collection</source>
        <translation>從收藏集移除</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>變更風格</translation>
    </message>
    <message>
        <source>New Style</source>
        <translation>新增風格</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>重新命名風格</translation>
    </message>
    <message>
        <source>Delete Style</source>
        <translation>刪除風格</translation>
    </message>
    <message>
        <source>Change Foundry</source>
        <translation>變更字型廠商</translation>
    </message>
    <message>
        <source>Rename Foundry</source>
        <translation>重新命名字型廠商</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>隱藏字型廠商</translation>
    </message>
    <message>
        <source>Show Foundry</source>
        <translation>顯示字型廠商</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaApplicationDelegate</name>
    <message>
        <source>All Fonts</source>
        <translation>所有字型</translation>
    </message>
    <message>
        <source>Lorva is a better way to browse, test, and manage your fonts. Organize them into collections, test logo images next to text, and turn fonts on or off as needed.</source>
        <translation>Lorva 讓您以更好的方式瀏覽、測試與管理字型：整理成收藏集、將標誌圖片與文字並列測試，並視需要啟用或停用字型。</translation>
    </message>
    <message>
        <source>Made for people who can never have enough fonts.</source>
        <translation>獻給永遠嫌字型不夠多的人。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaRootSplitViewController</name>
    <message>
        <source>Organize Fonts</source>
        <translation>整理字型</translation>
    </message>
    <message>
        <source>Export Specimen</source>
        <translation>匯出樣張</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaSettingsViewModel</name>
    <message>
        <source>This folder is not watched any more.</source>
        <translation>已不再監看這個資料夾。</translation>
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
        <translation>關於 Lorva</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <source>Organize Fonts…</source>
        <translation>整理字型…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>新增收藏集</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>加入資料夾…</translation>
    </message>
    <message>
        <source>Scan Folders Again</source>
        <translation>重新掃描資料夾</translation>
    </message>
    <message>
        <source>Export Specimen…</source>
        <translation>匯出樣張…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>%1 is what was done last, such as &quot;New Collection&quot;.</extracomment>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>複製為 CSS</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>尋找</translation>
    </message>
    <message>
        <source>Files That Failed…</source>
        <translation>失敗的檔案…</translation>
    </message>
    <message>
        <source>Activation History…</source>
        <translation>啟用記錄…</translation>
    </message>
    <message>
        <source>F&amp;onts</source>
        <extracomment>The titles of the menus, each with the letter that opens it.</extracomment>
        <translation>字型(&amp;O)</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>啟用…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>啟用其餘樣式…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>進入全螢幕</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>格狀</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>清單</translation>
    </message>
    <message>
        <source>Larger Specimens</source>
        <translation>放大樣張</translation>
    </message>
    <message>
        <source>Smaller Specimens</source>
        <translation>縮小樣張</translation>
    </message>
    <message>
        <source>Standard Specimen Size</source>
        <translation>標準樣張大小</translation>
    </message>
    <message>
        <source>Back to All Cards</source>
        <translation>返回所有卡片</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>下一個家族</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>上一個家族</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>顯示文字</translation>
    </message>
    <message>
        <source>Show Waterfall</source>
        <translation>顯示字級階梯</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>檢閱器</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>復原%1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做%1</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>離開全螢幕</translation>
    </message>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>啟用 %n 款字型…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>停用 %n 款字型</numerusform>
        </translation>
    </message>
    <message>
        <source>Lorva</source>
        <translation>Lorva</translation>
    </message>
    <message>
        <source>Version %1

Browse, test and organise all the fonts of this computer.</source>
        <translation>版本 %1

瀏覽、測試與整理這台電腦上的所有字型。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>lorva::OnboardingOverlay</name>
    <message>
        <source>Welcome to Lorva</source>
        <translation>歡迎使用 Lorva</translation>
    </message>
    <message>
        <source>Letters of your fonts fall. Press any key to go on.</source>
        <translation>您的字型字母紛紛落下。按任意鍵繼續。</translation>
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
        <translation>重新命名收藏集…</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>刪除收藏集</translation>
    </message>
    <message>
        <source>Hide from Sidebar</source>
        <translation>從側邊欄隱藏</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>新增收藏集</translation>
    </message>
    <message>
        <source>Activate Fonts…</source>
        <translation>啟用字型…</translation>
    </message>
    <message>
        <source>De-activate Fonts</source>
        <translation>停用字型</translation>
    </message>
    <message>
        <source>Rename Foundry…</source>
        <translation>重新命名字型廠商…</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>隱藏字型廠商</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>這會將這家字型廠商從側邊欄隱藏。</translation>
    </message>
    <message>
        <source>Hidden Foundries</source>
        <translation>隱藏的字型廠商</translation>
    </message>
    <message>
        <source>Create an empty collection.</source>
        <translation>建立空的收藏集。</translation>
    </message>
</context>
<context>
    <name>lorva::ReportSheet</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
</context>
<context>
    <name>lorva::SaturationField</name>
    <message>
        <source>Saturation and Brightness</source>
        <translation>飽和度與亮度</translation>
    </message>
    <message>
        <source>Saturation %1 %, brightness %2 %</source>
        <translation>飽和度 %1 %，亮度 %2 %</translation>
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
        <translation>加入資料夾…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %Ln fonts</source>
        <extracomment>A row of the sidebar, and how many fonts it leads to; spoken.</extracomment>
        <translation>
            <numerusform>%1，%Ln 款字型</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::SidebarOutlineView</name>
    <message>
        <source>Sidebar</source>
        <translation>側邊欄</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarRowCellView</name>
    <message>
        <source>Name</source>
        <extracomment>Of a collection or foundry that is being renamed.</extracomment>
        <translation>名稱</translation>
    </message>
</context>
<context>
    <name>lorva::SpecimenSlider</name>
    <message>
        <source>Size</source>
        <extracomment>Of the letters.</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Weight</source>
        <extracomment>How heavy letters are, from Thin to Black.</extracomment>
        <translation>字重</translation>
    </message>
    <message>
        <source>Letter Spacing</source>
        <translation>字距</translation>
    </message>
    <message>
        <source>Specimen size</source>
        <translation>樣張大小</translation>
    </message>
    <message>
        <source>Specimen weight</source>
        <translation>樣張字重</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>預覽大小</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>字距</translation>
    </message>
    <message>
        <source>%1 points</source>
        <extracomment>The size of letters; spoken.</extracomment>
        <translation>%1 點</translation>
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
        <translation>啟用…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <extracomment>A small button that switches one style of a family off; &quot;Active&quot; says that it is on.</extracomment>
        <translation>停用</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>De-activate %1</source>
        <translation>停用 %1</translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation>啟用 %1</translation>
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
        <translation>無法載入「%1」。</translation>
    </message>
    <message>
        <source>In one file with %1: they are activated and de-activated together.</source>
        <translation>與 %1 位於同一個檔案：會一併啟用與停用。</translation>
    </message>
    <message>
        <source>Shown in the preview.</source>
        <translation>已顯示在預覽中。</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are the styles that are in the same file as this one.</extracomment>
        <translation>與 %1 同檔</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>A style that the system has switched on, which the user cannot change.</extracomment>
        <translation>系統</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowsView</name>
    <message>
        <source>Styles</source>
        <translation>樣式</translation>
    </message>
</context>
<context>
    <name>lorva::UpdateCommands</name>
    <message>
        <source>Looking for a newer release…</source>
        <translation>正在尋找較新的版本…</translation>
    </message>
</context>
<context>
    <name>lorva::VariantBar</name>
    <message>
        <source>Variant</source>
        <extracomment>One of the widths or optical sizes of a family.</extracomment>
        <translation>變體</translation>
    </message>
    <message>
        <source>More Variants</source>
        <translation>更多變體</translation>
    </message>
    <message numerus="yes">
        <source>%n More</source>
        <extracomment>So many variants of a family that have no room beside the others.</extracomment>
        <translation>
            <numerusform>另 %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderDelegate</name>
    <message>
        <source>No fonts</source>
        <translation>沒有字型</translation>
    </message>
    <message numerus="yes">
        <source>%1 fonts</source>
        <translation>
            <numerusform>%1 款字型</numerusform>
        </translation>
    </message>
    <message>
        <source>Not there</source>
        <extracomment>A folder that is missing.</extracomment>
        <translation>不存在</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A folder, and how many fonts are in it; spoken.</extracomment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderList</name>
    <message>
        <source>Watched Folders</source>
        <translation>監看的資料夾</translation>
    </message>
    <message>
        <source>No folders yet. Drop folders of fonts here, or press +.</source>
        <translation>還沒有資料夾。將字型資料夾拖放到這裡，或按 +。</translation>
    </message>
</context>
<context>
    <name>lorva::WaterfallView</name>
    <message>
        <source>Waterfall</source>
        <translation>字級階梯</translation>
    </message>
</context>
<context>
    <name>lorvactl</name>
    <message>
        <source>Makes fonts of watched folders, and font files, available to every program. One line for each file: &quot;copied&quot;, &quot;registered&quot; or, when a file of its name is there already, &quot;skipped&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too. Nothing is replaced.</source>
        <translation>讓監看的資料夾中的字型與字型檔可供所有程式使用。每個檔案一行：「copied」、「registered」，或同名檔案已存在時為「skipped」；定位字元；檔案。「also」、定位字元、家族：這些檔案中也有該家族的字型。不會取代任何檔案。</translation>
    </message>
    <message>
        <source>A word with a slash is a file, every other one a family; a lone - reads families from standard input, one per line.</source>
        <translation>含斜線的引數是檔案，其餘都是家族；單獨的 - 從標準輸入讀取家族，每行一個。</translation>
    </message>
    <message>
        <source>copy the files into your Fonts folder: works even if the originals move or go offline</source>
        <translation>將檔案複製到您的字型資料夾：即使原始檔案移動或離線也能使用</translation>
    </message>
    <message>
        <source>activate them where they are, for as long as they stay there</source>
        <translation>在原位置啟用，檔案留在該處期間有效</translation>
    </message>
    <message>
        <source>(without --method, the one chosen as the default)</source>
        <translation>（未指定 --method 時，使用選定的預設方式）</translation>
    </message>
    <message>
        <source>the families of this collection; may be given more than once</source>
        <translation>這個收藏集的家族；可多次指定</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too; may be given more than once</source>
        <translation>也納入 DIR 下的字型；可多次指定</translation>
    </message>
    <message>
        <source>only tell what would be done</source>
        <translation>只說明將進行的動作</translation>
    </message>
    <message>
        <source>one JSON object instead of lines</source>
        <translation>以一個 JSON 物件取代各行輸出</translation>
    </message>
    <message>
        <source>--method takes copy or register</source>
        <translation>--method 須為 copy 或 register</translation>
    </message>
    <message>
        <source>activate needs --method copy or --method register, as no default is chosen</source>
        <translation>activate 需要 --method copy 或 --method register，因為未選定預設方式</translation>
    </message>
    <message>
        <source>registered, but its link is missing, so that no program sees it; the next activation makes it again</source>
        <translation>已註冊，但連結遺失，因此沒有程式看得到；下次啟用時會重新建立</translation>
    </message>
    <message>
        <source>registered, but gone; its registration will be withdrawn</source>
        <translation>已註冊，但檔案已不存在；註冊將會撤銷</translation>
    </message>
    <message>
        <source>active by a link that the books do not know; they will take it in</source>
        <translation>經由記錄中沒有的連結啟用；將納入記錄</translation>
    </message>
    <message>
        <source>gone, and the books do not know its link, which will be removed</source>
        <translation>檔案已不存在，連結也不在記錄中，將會移除</translation>
    </message>
    <message>
        <source>a copy that has gone from the Fonts folder; the books will forget it</source>
        <translation>副本已不在字型資料夾中；將從記錄中移除</translation>
    </message>
    <message>
        <source>another program is switching fonts on or off now</source>
        <translation>另一個程式正在啟用或停用字型</translation>
    </message>
    <message>
        <source>a program ended while it switched fonts on or off; the next activation finishes its books</source>
        <translation>有程式在啟用或停用字型時中斷；下次啟用時會補完記錄</translation>
    </message>
    <message>
        <source>not there now; its place in the list is kept</source>
        <translation>目前不存在；保留其在清單中的位置</translation>
    </message>
    <message>
        <source>on a volume where others&apos; changes are not noticed; the window looks when it becomes active</source>
        <translation>位於無法察覺外部變更的磁碟區；視窗成為使用中時會再檢查</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>監看中</translation>
    </message>
    <message>
        <source>lies in %1, which is watched too; each font counts once</source>
        <translation>位於同樣受監看的 %1 中；每款字型只計一次</translation>
    </message>
    <message>
        <source>books and disk agree: %1 copied, %2 registered</source>
        <translation>記錄與磁碟一致：複製 %1 個，註冊 %2 個</translation>
    </message>
    <message numerus="yes">
        <source>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</source>
        <translation>
            <numerusform>有 %n 個位於字型資料夾外的字型檔就地註冊：沙箱中的程式（例如來自 Flatpak 或 Snap 者）看不到未複製的檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>--collection takes no empty name</source>
        <translation>--collection 不接受空的名稱</translation>
    </message>
    <message>
        <source>%1; the file of that name is ./%2</source>
        <translation>%1；同名的檔案是 ./%2</translation>
    </message>
    <message>
        <source>this machine has no family %1</source>
        <translation>這台電腦沒有家族 %1</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到檔案</translation>
    </message>
    <message>
        <source>this is a folder; name the font files in it</source>
        <translation>這是資料夾；請指定其中的字型檔</translation>
    </message>
    <message>
        <source>it holds no font that can be read</source>
        <translation>不含可讀取的字型</translation>
    </message>
    <message>
        <source>standard input names no family</source>
        <translation>標準輸入未列出任何家族</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知的選項 %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一個值</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3</source>
        <translation>%1 須為 %2 到 %3 的整數</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3</source>
        <translation>%1 須為 %2 到 %3 的數字</translation>
    </message>
    <message>
        <source>%1 takes UTF-8 text</source>
        <translation>%1 須為 UTF-8 文字</translation>
    </message>
    <message>
        <source>Lists the collections, one line each: the name, a tab, the number of families; or the families of one, in their order. Changes are seen at once by a window that is open.</source>
        <translation>列出收藏集，每行一個：名稱、定位字元、家族數；或依序列出其中一個收藏集的家族。開啟中的視窗會立即反映變更。</translation>
    </message>
    <message>
        <source>puts families into a collection, at its end</source>
        <translation>將家族加到收藏集末尾</translation>
    </message>
    <message>
        <source>takes families out of it</source>
        <translation>從中移除家族</translation>
    </message>
    <message>
        <source>makes these families its members, in this order, and no others</source>
        <translation>使其成員依此順序只含這些家族</translation>
    </message>
    <message>
        <source>COLLECTION is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a collection; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>COLLECTION 是其 id（以 --json 顯示）或名稱；名稱不分大小寫，除非因此符合多個。FAMILY 是這台電腦或某個收藏集的家族名稱；單獨的 - 從標準輸入讀取名稱，每行一個。指令只會全部完成或完全不執行。</translation>
    </message>
    <message>
        <source>JSON instead of lines</source>
        <translation>以 JSON 取代各行輸出</translation>
    </message>
    <message>
        <source>cannot write the output: %1</source>
        <translation>無法寫出輸出：%1</translation>
    </message>
    <message>
        <source>%1; see %2</source>
        <translation>%1；請參閱 %2</translation>
    </message>
    <message>
        <source>Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder go to the Trash; your original files are not touched. Where Lorva does not know the original, the file stays unless --to says where it is to go. One line for each file: &quot;withdrawn&quot;, &quot;trashed&quot; or &quot;moved&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too.</source>
        <translation>停止讓所有程式使用字型。註冊會終止，字型資料夾中的副本會移到垃圾桶；您的原始檔案不會更動。若 Lorva 不知道原始檔案，檔案會留在原處，除非以 --to 指定去處。每個檔案一行：「withdrawn」、「trashed」或「moved」；定位字元；檔案。「also」、定位字元、家族：這些檔案中也有該家族的字型。</translation>
    </message>
    <message>
        <source>move the copies there instead, under a free name; made if it is missing</source>
        <translation>改將副本移到這裡，並使用未占用的名稱；資料夾不存在時會建立</translation>
    </message>
    <message>
        <source>--to needs the name of a folder</source>
        <translation>--to 需要資料夾名稱</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install it, so the original is not known; --to DIR moves it</source>
        <translation>不是由 Lorva 安裝，因此不知道原始檔案；--to DIR 可將其移走</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 位元組</numerusform>
        </translation>
    </message>
    <message>
        <source>not there yet; the first change makes it</source>
        <translation>尚不存在；首次變更時會建立</translation>
    </message>
    <message>
        <source>%1, preferences: %2</source>
        <translation>%1，偏好設定 %2 項</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>無法讀取：%1</translation>
    </message>
    <message>
        <source>changes can be written</source>
        <translation>可寫入變更</translation>
    </message>
    <message>
        <source>changes cannot be written: %1</source>
        <translation>無法寫入變更：%1</translation>
    </message>
    <message>
        <source>damaged preferences that were moved aside</source>
        <translation>已移到一旁的損毀偏好設定</translation>
    </message>
    <message>
        <source>%1, kept because it could not be read when it was replaced</source>
        <translation>%1，取代時無法讀取，故予保留</translation>
    </message>
    <message>
        <source>%1, unknown to this version, which leaves it alone</source>
        <translation>%1，這個版本無法辨識，不予更動</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a file, and what is wrong with it</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, cannot be read: %2; it counts as absent, and is kept when it is replaced</source>
        <translation>%1，無法讀取：%2；視為不存在，取代時會予保留</translation>
    </message>
    <message>
        <source>not there yet</source>
        <translation>尚不存在</translation>
    </message>
    <message>
        <source>of no use, and replaced by the next scan: %1</source>
        <translation>無法使用，下次掃描時會取代：%1</translation>
    </message>
    <message>
        <source>of no use, and replaced when the window has next read the fonts: %1</source>
        <translation>無法使用，視窗下次讀完字型後會取代：%1</translation>
    </message>
    <message>
        <source>all families that it names are in the last catalog: %1</source>
        <translation>其中列出的家族都在最近的目錄中：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 families that it names are not in the last catalog</source>
        <translation>
            <numerusform>其中列出的 %1 個家族有 %n 個不在最近的目錄中</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how preferences, caches, active fonts and watched folders fare, and changes nothing. One line for each finding: &quot;ok&quot;, &quot;note&quot; or &quot;wrong&quot;, a tab, the file or preference, a tab, what there is to say. A note is worth knowing, but nothing is out of order: preferences of another version, damaged ones that were kept beside new ones, a cache of no use that will be written anew, books that the next activation brings into line with the disk.</source>
        <translation>說明偏好設定、快取、已啟用的字型與監看的資料夾的狀況，不做任何變更。每項結果一行：「ok」、「note」或「wrong」、定位字元、檔案或偏好設定、定位字元、說明。note 表示值得留意但並無問題：其他版本的偏好設定、與新偏好設定一併保留的損毀偏好設定、將重新寫入的無用快取、下次啟用時會與磁碟對齊的記錄。</translation>
    </message>
    <message>
        <source>one JSON object instead</source>
        <translation>改以一個 JSON 物件輸出</translation>
    </message>
    <message>
        <source>Exit status: 0 all is well, 1 something is wrong.</source>
        <translation>結束狀態：0 一切正常，1 有問題。</translation>
    </message>
    <message>
        <source>doctor takes no words</source>
        <translation>doctor 不接受引數</translation>
    </message>
    <message>
        <source>collection %1 deleted</source>
        <translation>收藏集 %1 已刪除</translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>收藏集 %1 已建立，含 %n 個家族</numerusform>
        </translation>
    </message>
    <message>
        <source>collection %1: %2</source>
        <translation>收藏集 %1：%2</translation>
    </message>
    <message>
        <source>style %1 deleted</source>
        <translation>風格 %1 已刪除</translation>
    </message>
    <message numerus="yes">
        <source>style %1 created with %n families</source>
        <translation>
            <numerusform>風格 %1 已建立，含 %n 個家族</numerusform>
        </translation>
    </message>
    <message>
        <source>style %1: %2</source>
        <translation>風格 %1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%n families joined</source>
        <translation>
            <numerusform>加入 %n 個家族</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families left</source>
        <translation>
            <numerusform>移出 %n 個家族</numerusform>
        </translation>
    </message>
    <message>
        <source>renamed from %1</source>
        <translation>原名 %1</translation>
    </message>
    <message>
        <source>family %1: of the foundry that its fonts name</source>
        <translation>家族 %1：屬於字型所載的字型廠商</translation>
    </message>
    <message>
        <source>family %1: of no foundry</source>
        <translation>家族 %1：不屬於任何字型廠商</translation>
    </message>
    <message>
        <source>family %1: of the foundry %2</source>
        <translation>家族 %1：屬於字型廠商 %2</translation>
    </message>
    <message>
        <source>foundry %1: called %2</source>
        <translation>字型廠商 %1：改稱 %2</translation>
    </message>
    <message>
        <source>foundry %1: called by its own name</source>
        <translation>字型廠商 %1：使用原名</translation>
    </message>
    <message>
        <source>foundry %1: hidden</source>
        <translation>字型廠商 %1：已隱藏</translation>
    </message>
    <message>
        <source>foundry %1: shown again</source>
        <translation>字型廠商 %1：重新顯示</translation>
    </message>
    <message>
        <source>display settings of all fonts: taken in</source>
        <translation>所有字型的顯示設定：已納入</translation>
    </message>
    <message>
        <source>display settings of collection %1: taken in</source>
        <translation>收藏集 %1 的顯示設定：已納入</translation>
    </message>
    <message>
        <source>Writes collections, styles, what you said about foundries, and display settings as one JSON document, for another machine or for version control. Equal organisations give equal bytes.</source>
        <translation>將收藏集、風格、您對字型廠商的修正與顯示設定寫成一份 JSON 文件，供其他電腦或版本控制使用。相同的整理資料會產生相同的位元組。</translation>
    </message>
    <message>
        <source>the file to write, whole or not at all; standard output if not given</source>
        <translation>要寫入的檔案，只會全部寫入或完全不寫；未指定則為標準輸出</translation>
    </message>
    <message>
        <source>export takes a file as -o FILE</source>
        <translation>export 的檔案須以 -o FILE 指定</translation>
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
        <translation>未知</translation>
    </message>
    <message>
        <source>%1: holds no face that can be read</source>
        <translation>%1：不含可讀取的字型</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>家族</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>樣式</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 名稱</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>全名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>設計師</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作權</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>a title before a value, in a list of them</extracomment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>字重</translation>
    </message>
    <message>
        <source>%1 (trait %2)</source>
        <translation>%1（特徵值 %2）</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜體</translation>
    </message>
    <message>
        <source>%1 (slant %2)</source>
        <translation>%1（傾斜 %2）</translation>
    </message>
    <message>
        <source>default %1</source>
        <extracomment>the value of an axis of a variable font</extracomment>
        <translation>預設 %1</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>軸</translation>
    </message>
    <message>
        <source>linked with %1</source>
        <translation>與 %1 連結</translation>
    </message>
    <message>
        <source>left out of names</source>
        <translation>名稱中省略</translation>
    </message>
    <message>
        <source>Axis value</source>
        <translation>軸值</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>實例</translation>
    </message>
    <message>
        <source>Name %1</source>
        <translation>名稱 %1</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>名稱：</translation>
    </message>
    <message>
        <source>ascender %1, descender %2, line gap %3</source>
        <translation>上伸部 %1，下伸部 %2，行間隙 %3</translation>
    </message>
    <message>
        <source>position %1, thickness %2</source>
        <translation>位置 %1，粗細 %2</translation>
    </message>
    <message>
        <source>size %1 × %2, offset %3, %4</source>
        <translation>大小 %1 × %2，位移 %3, %4</translation>
    </message>
    <message>
        <source>Units per em</source>
        <translation>每 em 單位數</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>字高</translation>
    </message>
    <message>
        <source>capitals %1, x %2</source>
        <translation>大寫 %1，x %2</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>OS/2 typo, used</source>
        <translation>OS/2 typo，使用中</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>底線</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <translation>刪除線</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>下標</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>上標</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>邊界</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>修訂</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改時間</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>供應商</translation>
    </message>
    <message>
        <source>Embedding</source>
        <translation>嵌入</translation>
    </message>
    <message>
        <source>Weight class</source>
        <translation>字重級別</translation>
    </message>
    <message>
        <source>Width class</source>
        <translation>字寬級別</translation>
    </message>
    <message>
        <source>Average width</source>
        <translation>平均字寬</translation>
    </message>
    <message>
        <source>Widest advance</source>
        <translation>最大前進寬度</translation>
    </message>
    <message>
        <source>Italic angle</source>
        <translation>斜體角度</translation>
    </message>
    <message>
        <source>Monospaced</source>
        <translation>等寬</translation>
    </message>
    <message>
        <source>Smallest pixels</source>
        <translation>最小像素</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more ranges</source>
        <translation>
            <numerusform>另 %1 個範圍</numerusform>
        </translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>字元</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>範圍</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>a feature of a font that is switched on unless somebody switches it off</extracomment>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>at the end of a list of colours</extracomment>
        <translation>另 %1 個</translation>
    </message>
    <message>
        <source>for light backgrounds</source>
        <translation>用於淺色背景</translation>
    </message>
    <message>
        <source>for dark backgrounds</source>
        <translation>用於深色背景</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>調色盤</translation>
    </message>
    <message>
        <source>Colour tables</source>
        <translation>色彩資料表</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>排版</translation>
    </message>
    <message>
        <source>Tables, bytes</source>
        <translation>資料表（位元組）</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Face %1</source>
        <extracomment>one of the fonts in a file; %1: its number</extracomment>
        <translation>字型 %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Family %1</source>
        <translation>家族 %1</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>文字系統</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Primary script</source>
        <translation>主要文字系統</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>其他名稱</translation>
    </message>
    <message>
        <source>several families are called %1: %2</source>
        <translation>有多個家族名為 %1：%2</translation>
    </message>
    <message>
        <source>there is no family %1</source>
        <translation>沒有家族 %1</translation>
    </message>
    <message>
        <source>Lists the watched folders, whose fonts belong to your library: the folder, a tab, the number of font files in it, or &quot;not there&quot;. Changes are seen at once by a window that is open; no file is touched. A command is done whole or not at all.</source>
        <translation>列出監看的資料夾（其中的字型屬於您的字型庫）：資料夾、定位字元、其中的字型檔數，或「not there」。開啟中的視窗會立即反映變更；不會更動任何檔案。指令只會全部完成或完全不執行。</translation>
    </message>
    <message>
        <source>watches folders; one that is watched already stays as it is</source>
        <translation>監看資料夾；已監看的維持不變</translation>
    </message>
    <message>
        <source>ends that; what was activated from there stays active</source>
        <translation>停止監看；從該處啟用的字型維持啟用</translation>
    </message>
    <message>
        <source>ID is what --json shows.</source>
        <translation>ID 以 --json 顯示。</translation>
    </message>
    <message>
        <source>one JSON array of folders instead of lines; add and remove show what they added or removed</source>
        <translation>以一個資料夾 JSON 陣列取代各行輸出；add 與 remove 顯示加入或移除的項目</translation>
    </message>
    <message>
        <source>list takes fewer words</source>
        <translation>list 的引數過多</translation>
    </message>
    <message>
        <source>add takes no empty name</source>
        <translation>add 不接受空的名稱</translation>
    </message>
    <message>
        <source>the path %1 is no UTF-8 text</source>
        <translation>路徑 %1 不是 UTF-8 文字</translation>
    </message>
    <message>
        <source>remove takes no empty name</source>
        <translation>remove 不接受空的名稱</translation>
    </message>
    <message>
        <source>there is no watched folder %1</source>
        <translation>未監看資料夾 %1</translation>
    </message>
    <message>
        <source>unknown verb %1</source>
        <translation>未知的動作 %1</translation>
    </message>
    <message>
        <source>%1 needs a folder</source>
        <translation>%1 需要資料夾</translation>
    </message>
    <message>
        <source>Lists the foundries of this machine&apos;s fonts with two families at least, corrected by what you said, one line each: the name, a tab, the number of families; or the families of one. Changes are seen at once by a window that is open.</source>
        <translation>列出這台電腦上至少有兩個家族的字型廠商（依您的修正），每行一個：名稱、定位字元、家族數；或列出其中一家的家族。開啟中的視窗會立即反映變更。</translation>
    </message>
    <message>
        <source>shows the foundry under another name, or under its own with --original</source>
        <translation>以其他名稱顯示字型廠商；加上 --original 則使用原名</translation>
    </message>
    <message>
        <source>hides it, its families stay in the library; list --hidden shows such ones</source>
        <translation>隱藏字型廠商，其家族仍留在字型庫中；list --hidden 顯示已隱藏者</translation>
    </message>
    <message>
        <source>brings it back</source>
        <translation>重新顯示</translation>
    </message>
    <message>
        <source>moves families to it, whatever their fonts say</source>
        <translation>將家族歸入其中，不論字型所載為何</translation>
    </message>
    <message>
        <source>takes families out of it; they are of no foundry then</source>
        <translation>從中移除家族；之後不屬於任何字型廠商</translation>
    </message>
    <message>
        <source>makes these families its own; others that their fonts count to it are of no foundry then</source>
        <translation>使其只含這些家族；字型所載屬於它的其他家族，之後不屬於任何字型廠商</translation>
    </message>
    <message>
        <source>lets the fonts of families say it again</source>
        <translation>恢復依字型所載決定家族所屬</translation>
    </message>
    <message>
        <source>FOUNDRY is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of one that you sorted; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>FOUNDRY 是其 id（以 --json 顯示）或名稱；名稱不分大小寫，除非因此符合多個。FAMILY 是這台電腦或您曾歸類的家族名稱；單獨的 - 從標準輸入讀取名稱，每行一個。指令只會全部完成或完全不執行。</translation>
    </message>
    <message>
        <source>a foundry comes from the fonts and cannot be created; rename one, or add families to one</source>
        <translation>字型廠商來自字型，無法建立；請重新命名現有的字型廠商，或將家族加入其中</translation>
    </message>
    <message>
        <source>rename needs either a new name or --original</source>
        <translation>rename 需要新名稱或 --original 其中之一</translation>
    </message>
    <message>
        <source>no fonts of this machine are of the foundry %1</source>
        <translation>這台電腦沒有字型廠商 %1 的字型</translation>
    </message>
    <message>
        <source>there is no collection %1</source>
        <translation>沒有收藏集 %1</translation>
    </message>
    <message>
        <source>there is more than one collection %1; their ids: %2</source>
        <translation>有多個收藏集 %1；其 id：%2</translation>
    </message>
    <message>
        <source>there is a collection %1 already</source>
        <translation>已有收藏集 %1</translation>
    </message>
    <message>
        <source>%1 is not in collection %2</source>
        <translation>%1 不在收藏集 %2 中</translation>
    </message>
    <message>
        <source>there is no style %1</source>
        <translation>沒有風格 %1</translation>
    </message>
    <message>
        <source>there is more than one style %1; their ids: %2</source>
        <translation>有多個風格 %1；其 id：%2</translation>
    </message>
    <message>
        <source>there is a style %1 already</source>
        <translation>已有風格 %1</translation>
    </message>
    <message>
        <source>%1 is not in style %2</source>
        <translation>%1 不在風格 %2 中</translation>
    </message>
    <message>
        <source>there is no foundry %1</source>
        <translation>沒有字型廠商 %1</translation>
    </message>
    <message>
        <source>there is more than one foundry %1; their ids: %2</source>
        <translation>有多個字型廠商 %1；其 id：%2</translation>
    </message>
    <message>
        <source>there is a foundry %1 already</source>
        <translation>已有字型廠商 %1</translation>
    </message>
    <message>
        <source>%1 is not in foundry %2</source>
        <translation>%1 不在字型廠商 %2 中</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>顯示這份說明</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too, beside those of the watched folders</source>
        <translation>除監看的資料夾外，也納入 DIR 下的字型</translation>
    </message>
    <message>
        <source>take names of families that this machine lacks, for when their fonts come</source>
        <translation>接受這台電腦沒有的家族名稱，待日後有其字型時使用</translation>
    </message>
    <message>
        <source>Tells what was switched on and off here, in the window and by lorvactl, the newest first. One line for each time: when, a tab, &quot;copied&quot;, &quot;registered&quot;, &quot;deactivated&quot;, &quot;moved&quot; or &quot;restored&quot;, a tab, the families; after &quot;moved&quot; a tab, and where to. Then a line for each file, which begins with a tab: &quot;done&quot;, &quot;skipped&quot; (its name was taken), &quot;failed&quot; or &quot;left&quot; (it was stopped before), a tab, the file; after &quot;failed&quot; a tab, and why.</source>
        <translation>列出在這裡經由視窗與 lorvactl 啟用及停用的記錄，最新的在前。每次一行：時間、定位字元、「copied」、「registered」、「deactivated」、「moved」或「restored」、定位字元、家族；「moved」之後另有定位字元與去處。接著每個檔案一行，以定位字元開頭：「done」、「skipped」（名稱已被占用）、「failed」或「left」（在此之前已中止）、定位字元、檔案；「failed」之後另有定位字元與原因。</translation>
    </message>
    <message>
        <source>only the newest N times</source>
        <translation>只列出最新的 N 次</translation>
    </message>
    <message>
        <source>one JSON array instead of lines</source>
        <translation>以一個 JSON 陣列取代各行輸出</translation>
    </message>
    <message>
        <source>a table for spreadsheets instead, one row for each file</source>
        <translation>改為試算表用的表格，每個檔案一列</translation>
    </message>
    <message>
        <source>history takes --json or --csv, not both</source>
        <translation>history 只能使用 --json 或 --csv 其中之一</translation>
    </message>
    <message>
        <source>history takes no further words</source>
        <translation>history 不接受其他引數</translation>
    </message>
    <message>
        <source>Takes in what lorvactl export wrote; a lone - reads standard input. Collections and styles of the same id or name take the file&apos;s families in, others come anew, and what the file says about foundries and display settings wins; nothing is taken away. Families that this machine lacks stay members, for when their fonts come. Tells what changed, one line each. Done whole or not at all.</source>
        <translation>匯入 lorvactl export 寫出的內容；單獨的 - 讀取標準輸入。id 或名稱相同的收藏集與風格會納入檔案中的家族，其他則新增；字型廠商與顯示設定以檔案為準；不會移除任何內容。這台電腦沒有的家族仍為成員，待日後有其字型時使用。說明變更的內容，每項一行。只會全部完成或完全不執行。</translation>
    </message>
    <message>
        <source>make collections, styles and foundries what the file says and nothing else; what was there is first written to a file beside the preferences; the window no longer sorts families into styles by itself</source>
        <translation>使收藏集、風格與字型廠商與檔案完全一致；原有內容會先寫入偏好設定旁的檔案；視窗不再自行將家族分類為各種風格</translation>
    </message>
    <message>
        <source>only tell what would change</source>
        <translation>只說明將有的變更</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準輸入</translation>
    </message>
    <message>
        <source>preference %1: made anew</source>
        <translation>偏好設定 %1：已重新建立</translation>
    </message>
    <message>
        <source>%1 lacks what could not be read: %2</source>
        <translation>%1 缺少無法讀取的內容：%2</translation>
    </message>
    <message>
        <source>%1; what stands there would be kept</source>
        <translation>%1；原有內容將予保留</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>沒有要變更的內容</translation>
    </message>
    <message>
        <source>what was there: %1</source>
        <translation>原有內容：%1</translation>
    </message>
    <message>
        <source>import takes one file</source>
        <translation>import 須有一個檔案</translation>
    </message>
    <message>
        <source>Shows what there is to know of every face of a font file: names in every language, format, metrics, embedding rights, characters, variation axes with their named values and instances, features, layout languages, colours and tables; and which writing scripts its families serve.</source>
        <translation>顯示字型檔中每款字型的所有資訊：各語言的名稱、格式、度量、嵌入權限、字元、可變軸及其具名值與實例、特性、排版語言、色彩與資料表；以及其家族支援的文字系統。</translation>
    </message>
    <message>
        <source>list every glyph with its name and its character, too</source>
        <translation>同時列出每個字符及其名稱與字元</translation>
    </message>
    <message>
        <source>info takes one font file</source>
        <translation>info 須有一個字型檔</translation>
    </message>
    <message>
        <source>standard input is not UTF-8 text</source>
        <translation>標準輸入不是 UTF-8 文字</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>無法讀取標準輸入：%1</translation>
    </message>
    <message>
        <source>standard input has more than %1 bytes</source>
        <translation>標準輸入超過 %1 位元組</translation>
    </message>
    <message>
        <source>the name of a family must be UTF-8 text</source>
        <translation>家族名稱須為 UTF-8 文字</translation>
    </message>
    <message>
        <source>the name of a family cannot be empty</source>
        <translation>家族名稱不可空白</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>沒有資料夾 %1</translation>
    </message>
    <message>
        <source>--folder needs the name of a folder</source>
        <translation>--folder 需要資料夾名稱</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是資料夾</translation>
    </message>
    <message>
        <source>the watched folders cannot be read (%1); they are left out</source>
        <translation>無法讀取監看的資料夾（%1）；將予略過</translation>
    </message>
    <message>
        <source>Lists the font families of this machine, one line each: the name, a tab, the styles. Characters that would break a line are written as escapes (\n, \u{202e}).</source>
        <translation>列出這台電腦的字型家族，每行一個：名稱、定位字元、樣式。會使行中斷的字元以跳脫序列表示（\n、\u{202e}）。</translation>
    </message>
    <message>
        <source>one JSON array of families instead</source>
        <translation>改以一個家族 JSON 陣列輸出</translation>
    </message>
    <message>
        <source>only families that can set latin, japanese, korean, simplifiedChinese or traditionalChinese</source>
        <translation>只列出可用於 latin、japanese、korean、simplifiedChinese 或 traditionalChinese 的家族</translation>
    </message>
    <message>
        <source>--script takes %1</source>
        <translation>--script 須為 %1</translation>
    </message>
    <message>
        <source>list takes folders as --folder DIR</source>
        <translation>list 的資料夾須以 --folder DIR 指定</translation>
    </message>
    <message>
        <source>list the font families of this machine</source>
        <translation>列出這台電腦的字型家族</translation>
    </message>
    <message>
        <source>list those that a search finds</source>
        <translation>列出搜尋找到的家族</translation>
    </message>
    <message>
        <source>read the fonts that changed, and tell what that took</source>
        <translation>讀取有變更的字型，並說明所花時間</translation>
    </message>
    <message>
        <source>show what a font file says about its faces</source>
        <translation>顯示字型檔中各款字型的資訊</translation>
    </message>
    <message>
        <source>draw text in a font: PNG, SVG or PDF</source>
        <translation>以字型繪製文字：PNG、SVG 或 PDF</translation>
    </message>
    <message>
        <source>list, make and change collections</source>
        <translation>列出、建立與變更收藏集</translation>
    </message>
    <message>
        <source>list, make and change styles</source>
        <translation>列出、建立與變更風格</translation>
    </message>
    <message>
        <source>list and correct the foundries</source>
        <translation>列出與修正字型廠商</translation>
    </message>
    <message>
        <source>write all of that to a file</source>
        <translation>將以上全部寫入檔案</translation>
    </message>
    <message>
        <source>take it in from such a file</source>
        <translation>從這類檔案匯入</translation>
    </message>
    <message>
        <source>make fonts available to every program</source>
        <translation>讓所有程式都能使用字型</translation>
    </message>
    <message>
        <source>withdraw them again</source>
        <translation>停止供所有程式使用</translation>
    </message>
    <message>
        <source>tell what is active, and how</source>
        <translation>說明哪些已啟用，以及啟用方式</translation>
    </message>
    <message>
        <source>list, add and remove watched folders</source>
        <translation>列出、加入與移除監看的資料夾</translation>
    </message>
    <message>
        <source>tell what was switched on and off, and when</source>
        <translation>列出啟用與停用的內容及時間</translation>
    </message>
    <message>
        <source>tell how preferences, caches and activation fare</source>
        <translation>說明偏好設定、快取與啟用的狀況</translation>
    </message>
    <message>
        <source>ask whether there is a newer release of Lorva</source>
        <translation>詢問 Lorva 是否有新版本</translation>
    </message>
    <message>
        <source>show this help; also after a command</source>
        <translation>顯示這份說明；也可用於指令之後</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>顯示版本</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command was not understood.</source>
        <translation>結束狀態：0 完成，1 失敗，2 無法理解指令。</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>缺少指令</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>未知的指令 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 個項目</numerusform>
        </translation>
    </message>
    <message>
        <source>readable</source>
        <translation>可讀取</translation>
    </message>
    <message>
        <source>neither copy nor register</source>
        <translation>既非 copy 也非 register</translation>
    </message>
    <message>
        <source>not a whole value of kind %1</source>
        <translation>不是完整的 %1 型別值</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>資料庫已損毀</translation>
    </message>
    <message>
        <source>no folder for a copy: %1</source>
        <translation>沒有可存放副本的資料夾：%1</translation>
    </message>
    <message>
        <source>process %1 keeps it locked</source>
        <translation>處理程序 %1 將其鎖定中</translation>
    </message>
    <message>
        <source>%1 is no regular file</source>
        <translation>%1 不是一般檔案</translation>
    </message>
    <message>
        <source>no space is left in %1</source>
        <translation>%1 中已無可用空間</translation>
    </message>
    <message>
        <source>Reads the fonts of this machine that have changed since the last scan, writes down what it learned for the next one, and tells what it did and how long each step took.</source>
        <translation>讀取這台電腦上自上次掃描後有變更的字型，記下所得供下次使用，並說明執行的動作與各步驟所花時間。</translation>
    </message>
    <message>
        <source>Read the cache</source>
        <translation>讀取快取</translation>
    </message>
    <message>
        <source>Find files</source>
        <translation>尋找檔案</translation>
    </message>
    <message>
        <source>Read faces</source>
        <translation>讀取字型</translation>
    </message>
    <message>
        <source>Identify families</source>
        <translation>辨識家族</translation>
    </message>
    <message>
        <source>Group families</source>
        <translation>將家族分組</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>a time in milliseconds</extracomment>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Fonts: %1 found, %2 read, %3 unchanged</source>
        <translation>字型：找到 %1 款，讀取 %2 款，未變更 %3 款</translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>%1 個樣式</numerusform>
        </translation>
    </message>
    <message>
        <source>Families: %1 with %2, %3 newly identified</source>
        <translation>家族：%1 個，共 %2，新辨識 %3 個</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>總計</translation>
    </message>
    <message>
        <source>scan takes folders as --folder DIR</source>
        <translation>scan 的資料夾須以 --folder DIR 指定</translation>
    </message>
    <message>
        <source>Lists the font families that the window&apos;s search field finds: those with TEXT in their name, in a name in another language or in their manufacturer&apos;s name, whatever its case, accents and width, Hiragana for Katakana. One line each: the name, a tab, the styles.</source>
        <translation>列出視窗的搜尋欄位會找到的字型家族：名稱、其他語言的名稱或製造商名稱中含有 TEXT 者，不分大小寫、重音、全半形，片假名也可用平假名尋找。每行一個：名稱、定位字元、樣式。</translation>
    </message>
    <message>
        <source>search takes one text</source>
        <translation>search 須有一段文字</translation>
    </message>
    <message>
        <source>the text needs %1 pixels of height; give a --height up to %2</source>
        <translation>文字需要 %1 像素的高度；請指定 --height，最大 %2</translation>
    </message>
    <message>
        <source>the picture is too small for all of the text</source>
        <translation>圖片太小，容納不下所有文字</translation>
    </message>
    <message>
        <source>Draws text in a face of a font file. In an SVG or PDF the letters are outlines; no font is embedded.</source>
        <translation>以字型檔中的字型繪製文字。在 SVG 或 PDF 中，文字為外框，不嵌入字型。</translation>
    </message>
    <message>
        <source>what to write, a .png, .svg or .pdf by its name; never a font file</source>
        <translation>要寫入的檔案，依名稱為 .png、.svg 或 .pdf；絕不可為字型檔</translation>
    </message>
    <message>
        <source>what to draw; a pangram if not given</source>
        <translation>要繪製的文字；未指定則使用全字母句</translation>
    </message>
    <message>
        <source>which face of a collection, from 0</source>
        <translation>集合檔中的第幾款字型，從 0 起算</translation>
    </message>
    <message>
        <source>a named instance of a variable face</source>
        <translation>可變字型的具名實例</translation>
    </message>
    <message>
        <source>values of axes: wght=650,wdth=80</source>
        <translation>軸值：wght=650,wdth=80</translation>
    </message>
    <message>
        <source>OpenType features: smcp,onum=0,ss01=1,-liga,+dlig</source>
        <translation>OpenType 特性：smcp,onum=0,ss01=1,-liga,+dlig</translation>
    </message>
    <message>
        <source>which palette of a colour font, from 0</source>
        <translation>彩色字型的第幾個調色盤，從 0 起算</translation>
    </message>
    <message>
        <source>for forms of that language: ja, zh-Hant, sr (BCP 47)</source>
        <translation>使用該語言的字形：ja、zh-Hant、sr (BCP 47)</translation>
    </message>
    <message>
        <source>of the text; auto, by its first letter, if not given</source>
        <translation>文字方向；未指定則為 auto，依第一個字母決定</translation>
    </message>
    <message>
        <source>pixels after each letter, -1000 to 1000</source>
        <translation>每個字母後的像素數，-1000 到 1000</translation>
    </message>
    <message>
        <source>pixels per em, 1 to 4096; 48 if not given</source>
        <translation>每 em 像素數，1 到 4096；未指定則為 48</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; the text wraps. As wide as the text if not given</source>
        <translation>像素，1 到 16384；文字會換行。未指定則與文字同寬</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; as high as the text if not given</source>
        <translation>像素，1 到 16384；未指定則與文字同高</translation>
    </message>
    <message>
        <source>of the text; black if not given</source>
        <translation>文字顏色；未指定則為黑色</translation>
    </message>
    <message>
        <source>white if not given</source>
        <translation>未指定則為白色</translation>
    </message>
    <message>
        <source>specimen takes one font file</source>
        <translation>specimen 須有一個字型檔</translation>
    </message>
    <message>
        <source>specimen needs a picture to write: -o PICTURE</source>
        <translation>specimen 須指定要寫入的圖片：-o PICTURE</translation>
    </message>
    <message>
        <source>%1: the face has no instance %2</source>
        <translation>%1：這款字型沒有實例 %2</translation>
    </message>
    <message>
        <source>%1: the face has no axes</source>
        <translation>%1：這款字型沒有軸</translation>
    </message>
    <message>
        <source>%1: the face has no axis %2, only %3</source>
        <translation>%1：這款字型沒有軸 %2，只有 %3</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3: drawn with %4 instead of %5</source>
        <translation>%1 的範圍為 %2 到 %3：以 %4 繪製，而非 %5</translation>
    </message>
    <message>
        <source>the face has no feature %1</source>
        <translation>這款字型沒有特性 %1</translation>
    </message>
    <message>
        <source>%1: the face has no palettes</source>
        <translation>%1：這款字型沒有調色盤</translation>
    </message>
    <message>
        <source>%1: the face has no palette %2, only 0 to %3</source>
        <translation>%1：這款字型沒有調色盤 %2，只有 0 到 %3</translation>
    </message>
    <message>
        <source>%1 takes a list of features as smcp,onum=0,-liga</source>
        <translation>%1 須為特性清單，如 smcp,onum=0,-liga</translation>
    </message>
    <message>
        <source>%1 takes a list of axes as wght=650,wdth=80</source>
        <translation>%1 須為軸清單，如 wght=650,wdth=80</translation>
    </message>
    <message>
        <source>%1 takes a language as ja, zh-Hant or sr-Latn-RS (BCP 47)</source>
        <translation>%1 須為語言，如 ja、zh-Hant 或 sr-Latn-RS (BCP 47)</translation>
    </message>
    <message>
        <source>%1 takes ltr, rtl or auto</source>
        <translation>%1 須為 ltr、rtl 或 auto</translation>
    </message>
    <message>
        <source>%1 takes a colour as #RRGGBB</source>
        <translation>%1 須為 #RRGGBB 格式的顏色</translation>
    </message>
    <message>
        <source>Tells what is available to every program, one line for each family: the name, a tab, &quot;active (copied)&quot;, &quot;active (registered)&quot;, &quot;active (system)&quot;, &quot;partly active&quot; or &quot;inactive&quot;. Of families that are named it tells of the files too, each on a line that begins with a tab: what it is (copied, registered, inactive, system), a tab, the file; of copies then a tab, and where they came from; of originals that were copied a tab, and what is active for them. A word with a slash is a file; its families are then judged by that file alone.</source>
        <translation>說明哪些字型可供所有程式使用，每個家族一行：名稱、定位字元、「active (copied)」、「active (registered)」、「active (system)」、「partly active」或「inactive」。指定家族時也會列出其檔案，每個檔案一行，以定位字元開頭：狀態（copied、registered、inactive、system）、定位字元、檔案；副本之後另有定位字元與來源；已複製的原始檔案另有定位字元與代其啟用的檔案。含斜線的引數是檔案，其家族僅依該檔案判斷。</translation>
    </message>
    <message>
        <source>one JSON array of families instead, always with their files</source>
        <translation>改以一個家族 JSON 陣列輸出，一律包含其檔案</translation>
    </message>
    <message>
        <source>Lists the styles, one line each: the name, a tab, the number of families; or the families of one, by name. Changes are seen at once by a window that is open. The window sorts families into styles by their names once, at its first start.</source>
        <translation>列出風格，每行一個：名稱、定位字元、家族數；或依名稱列出其中一種風格的家族。開啟中的視窗會立即反映變更。視窗首次啟動時會依名稱將家族分類為各種風格，只進行一次。</translation>
    </message>
    <message>
        <source>a style of your own</source>
        <translation>您自訂的風格</translation>
    </message>
    <message>
        <source>only a style of your own, not one of those that every library has</source>
        <translation>僅限您自訂的風格，不含每個字型庫都有的風格</translation>
    </message>
    <message>
        <source>likewise; its families are in no style then</source>
        <translation>同上；其家族之後不屬於任何風格</translation>
    </message>
    <message>
        <source>moves families there: a family is in one style at most</source>
        <translation>將家族移入其中：一個家族最多屬於一種風格</translation>
    </message>
    <message>
        <source>takes families out of it; they are in no style then</source>
        <translation>從中移除家族；之後不屬於任何風格</translation>
    </message>
    <message>
        <source>makes these families its members; those that leave are in no style then</source>
        <translation>使其成員只含這些家族；離開的家族之後不屬於任何風格</translation>
    </message>
    <message>
        <source>STYLE is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a style; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>STYLE 是其 id（以 --json 顯示）或名稱；名稱不分大小寫，除非因此符合多個。FAMILY 是這台電腦或某個風格的家族名稱；單獨的 - 從標準輸入讀取名稱，每行一個。指令只會全部完成或完全不執行。</translation>
    </message>
    <message>
        <source>every library has the style %1, which cannot be renamed or deleted</source>
        <translation>每個字型庫都有風格 %1，無法重新命名或刪除</translation>
    </message>
    <message>
        <source>%1 needs a family, a file or --collection</source>
        <translation>%1 需要家族、檔案或 --collection</translation>
    </message>
    <message>
        <source>the preference %1 cannot be read (%2)</source>
        <translation>無法讀取偏好設定 %1（%2）</translation>
    </message>
    <message>
        <source>%1; what stood there is kept as %2</source>
        <translation>%1；原有內容已保留為 %2</translation>
    </message>
    <message>
        <source>Asks the makers of Lorva over the network whether there is a newer release. Nothing is downloaded or installed. One line tells that this is the newest; of a newer one the first line tells version, day and page, and the second, if there is one, what is new. The exit status is 0 in both cases, and 1 when neither could be found out, as in a build whose updates come with the system&apos;s.</source>
        <translation>透過網路向 Lorva 的開發者詢問是否有新版本。不會下載或安裝任何內容。若已是最新版本，則以一行說明；若有新版本，第一行說明版本、日期與頁面，第二行（若有）說明新功能。兩種情況的結束狀態都是 0；若無法得知則為 1，例如由系統更新提供更新的組建。</translation>
    </message>
    <message>
        <source>one JSON object instead: isNewer, runningVersion, version, date, page, summary</source>
        <translation>改以一個 JSON 物件輸出：isNewer、runningVersion、version、date、page、summary</translation>
    </message>
    <message>
        <source>ask there instead, https or on this computer; to try out a feed</source>
        <translation>改向該位址詢問，限 https 或這台電腦；用於測試版本資訊</translation>
    </message>
    <message>
        <source>the feed&apos;s Ed25519 key, 32 bytes in Base64, instead of the makers&apos;</source>
        <translation>版本資訊的 Ed25519 金鑰，Base64 編碼的 32 位元組，取代開發者的金鑰</translation>
    </message>
    <message>
        <source>--feed needs an address</source>
        <translation>--feed 需要位址</translation>
    </message>
    <message>
        <source>Lorva %1 is up to date</source>
        <translation>Lorva %1 已是最新版本</translation>
    </message>
    <message>
        <source>Lorva %1 was released on %2; this is %3: %4</source>
        <translation>Lorva %1 已於 %2 發布；目前為 %3：%4</translation>
    </message>
    <message>
        <source>updates takes no further words</source>
        <translation>updates 不接受其他引數</translation>
    </message>
    <message>
        <source>this build does not look for new versions: the system&apos;s software updates bring them</source>
        <translation>這個組建不會尋找新版本：由系統的軟體更新提供</translation>
    </message>
    <message>
        <source>%1; lorvactl doctor tells more</source>
        <translation>%1；lorvactl doctor 會說明更多</translation>
    </message>
    <message>
        <source>%1 and counts as absent</source>
        <translation>%1，視為不存在</translation>
    </message>
    <message>
        <source>%1 could not be read and was moved to %2</source>
        <translation>%1 無法讀取，已移到 %2</translation>
    </message>
    <message>
        <source>the preferences could not be read</source>
        <translation>無法讀取偏好設定</translation>
    </message>
    <message>
        <source>the preferences could not be written</source>
        <translation>無法寫入偏好設定</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <translation>%1 不接受 %2</translation>
    </message>
    <message>
        <source>%1 takes no empty name</source>
        <translation>%1 不接受空的名稱</translation>
    </message>
    <message>
        <source>%1 needs more words</source>
        <translation>%1 的引數不足</translation>
    </message>
    <message>
        <source>%1 takes fewer words</source>
        <translation>%1 的引數過多</translation>
    </message>
    <message>
        <source>%1 needs a family, and standard input names none</source>
        <translation>%1 需要家族，但標準輸入未列出任何家族</translation>
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
            <numerusform>%n 個家族</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>%n 個字型檔</numerusform>
        </translation>
    </message>
    <message>
        <source>draw the picture of a font that file managers show</source>
        <translation>繪製檔案管理程式所顯示的字型圖片</translation>
    </message>
    <message>
        <source>tell what a report of a fault needs, and nobody&apos;s names</source>
        <translation>列出問題回報所需的資訊，不含任何名稱</translation>
    </message>
    <message>
        <source>Tells what a report of a fault needs: versions, the desktop, counts, sizes, times, what the doctor finds, and settings. Nothing in it names a font, a file, a folder, a collection or a person, and no text that was typed is in it. It is in English, whatever the language.</source>
        <translation>列出問題回報所需的資訊：版本、桌面、數量、大小、時間、doctor 的檢查結果與設定。其中不含字型、檔案、資料夾、收藏集的名稱與人名，也不含輸入過的文字。無論使用何種語言，內容一律為英文。</translation>
    </message>
    <message>
        <source>report takes no words</source>
        <translation>report 不接受引數</translation>
    </message>
    <message>
        <source>%1: has no letters or symbols to show</source>
        <translation>%1：沒有可顯示的字母或符號</translation>
    </message>
    <message>
        <source>Draws the picture of a font that file managers show: &quot;Aa&quot;, or letters or symbols of the font&apos;s own script, on a square sheet, written as PNG. FONT is a file or its file: address. It is read in a process that can do nothing but read and draw, within bounds of time and memory; for a font that cannot be shown nothing is written.</source>
        <translation>繪製檔案管理程式所顯示的字型圖片：在方形底面上繪製 &quot;Aa&quot;，或字型本身文字系統的字母或符號，寫成 PNG。FONT 是檔案或其 file: 位址。讀取時使用只能讀取與繪製的處理程序，時間與記憶體均有上限；若字型無法顯示，則不會寫入任何內容。</translation>
    </message>
    <message>
        <source>pixels each way, 16 to 2048; 256 if not given</source>
        <translation>邊長像素，16 到 2048；未指定則為 256</translation>
    </message>
    <message>
        <source>which face of a collection, from 0; the first that can be drawn if not given</source>
        <translation>集合檔中的第幾款字型，從 0 起算；未指定則為第一款可繪製的字型</translation>
    </message>
    <message>
        <source>thumbnail takes a font file and a picture to write</source>
        <translation>thumbnail 須有一個字型檔與一個要寫入的圖片</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>無法編碼圖片</translation>
    </message>
    <message>
        <source>Reasons stay in the language of whoever switched the fonts, with --json and --csv, too.</source>
        <translation>原因會保留啟用或停用字型的人所用的語言，使用 --json 和 --csv 時也一樣。</translation>
    </message>
    <message>
        <source>the stored value is of another type</source>
        <translation>儲存的值類型不符</translation>
    </message>
</context>
</TS>
