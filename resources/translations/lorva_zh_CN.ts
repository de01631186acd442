<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActivationTexts</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences, one after the other.</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>De-activate %1?</source>
        <translation>要停用 %1 吗？</translation>
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
        <translation>选择文件夹…</translation>
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
            <numerusform>%n 款字体</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n 款字体</numerusform>
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
            <numerusform>另外 %n 个字体家族</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. Activating makes them available too.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>此字体的文件还包含 %1。启用后，它们也将可用。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. Activating makes them available too.</source>
        <translation>
            <numerusform>这些字体的文件还包含 %1。启用后，它们也将可用。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. De-activating removes all of them.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>此字体的文件还包含 %1。停用后，它们将一并移除。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. De-activating removes all of them.</source>
        <translation>
            <numerusform>这些字体的文件还包含 %1。停用后，它们将一并移除。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to activate</source>
        <translation>没有可启用的字体</translation>
    </message>
    <message>
        <source>Every user-controllable font in %1 is already active.</source>
        <translation>%1 中可由用户控制的字体均已启用。</translation>
    </message>
    <message>
        <source>Every selected font is already active.</source>
        <translation>所选字体均已启用。</translation>
    </message>
    <message>
        <source>Nothing to de-activate</source>
        <translation>没有可停用的字体</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in %1.</source>
        <translation>%1 中没有可由用户控制的已启用字体。</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in the selection.</source>
        <translation>所选内容中没有可由用户控制的已启用字体。</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to activate.</source>
        <translation>
            <numerusform>%n 个文件启用失败。</numerusform>
        </translation>
    </message>
    <message>
        <source>Activation of %1 stopped</source>
        <translation>已中止启用 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are available in every app on your Mac.</source>
        <translation>
            <numerusform>%2 个文件中的 %1 个现可在这台电脑的所有应用中使用。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully activate %1</source>
        <translation>未能全部启用 %1</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <translation>已安装 %1</translation>
    </message>
    <message>
        <source>Now available in every app on your Mac.</source>
        <translation>现可在这台电脑的所有应用中使用。</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to de-activate.</source>
        <translation>
            <numerusform>%n 个文件停用失败。</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activation of %1 stopped</source>
        <translation>已中止停用 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are no longer available system-wide.</source>
        <translation>
            <numerusform>%2 个文件中的 %1 个在整个系统中不再可用。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully de-activate %1</source>
        <translation>未能全部停用 %1</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>已移除 %1</translation>
    </message>
    <message>
        <source>No longer available system-wide.</source>
        <translation>在整个系统中不再可用。</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be brought back.</source>
        <translation>
            <numerusform>%n 个文件未能恢复。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are back.</source>
        <translation>
            <numerusform>%2 个文件中的 %1 个已恢复。</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully bring back %1</source>
        <translation>未能全部恢复 %1</translation>
    </message>
    <message>
        <source>The font will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>此字体在整个系统中将不再可用。原始字体文件不受影响。</translation>
    </message>
    <message>
        <source>The fonts will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>这些字体在整个系统中将不再可用。原始字体文件不受影响。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font files are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>%1 不是由 Lorva 安装的，无法得知原始字体文件的位置。请选择一个文件夹存放这些文件，否则您将失去唯一的副本。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install some of these fonts, so we don&apos;t know where the originals are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>其中一些字体不是由 Lorva 安装的，无法得知原始文件的位置。请选择一个文件夹存放这些文件，否则您将失去唯一的副本。</translation>
    </message>
    <message>
        <source>The style will no longer be available system-wide.</source>
        <translation>此样式在整个系统中将不再可用。</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font file is. Choose a folder to move it to, otherwise you&apos;d lose your only copy.</source>
        <translation>%1 不是由 Lorva 安装的，无法得知原始字体文件的位置。请选择一个文件夹存放该文件，否则您将失去唯一的副本。</translation>
    </message>
    <message>
        <source>Choose a folder for the font files that are de-activated.</source>
        <translation>选择一个文件夹，用于存放停用的字体文件。</translation>
    </message>
    <message>
        <source>Move Here</source>
        <translation>移到此处</translation>
    </message>
    <message>
        <source>Activating %1…</source>
        <translation>正在启用 %1…</translation>
    </message>
    <message numerus="yes">
        <source>Activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>正在启用 %1… %2/%3 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activating %1…</source>
        <translation>正在停用 %1…</translation>
    </message>
    <message numerus="yes">
        <source>De-activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>正在停用 %1… %2/%3 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Bringing back %1…</source>
        <translation>正在恢复 %1…</translation>
    </message>
    <message numerus="yes">
        <source>Bringing back %1… %2 of %3 files</source>
        <translation>
            <numerusform>正在恢复 %1… %2/%3 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t read the activation history</source>
        <translation>无法读取启用历史</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the list</source>
        <translation>无法保存列表</translation>
    </message>
    <message>
        <source>Files That Failed</source>
        <translation>失败的文件</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be switched on or off.</source>
        <translation>
            <numerusform>%n 个文件未能启用或停用。</numerusform>
        </translation>
    </message>
    <message>
        <source>No file has failed.</source>
        <translation>没有失败的文件。</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>cannot write %1: not a regular file</source>
        <translation>无法写入 %1：不是普通文件</translation>
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
        <translation>自定文字颜色</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Your Image</source>
        <translation>您的图像</translation>
    </message>
    <message>
        <source>Add Image…</source>
        <translation>添加图像…</translation>
    </message>
</context>
<context>
    <name>BackgroundImageStore</name>
    <message>
        <source>The image is not there</source>
        <translation>图像不存在</translation>
    </message>
    <message>
        <source>The file is too large for a background</source>
        <translation>文件太大，无法用作背景</translation>
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
        <translation>余烬</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Lagoon</source>
        <translation>潟湖</translation>
    </message>
    <message>
        <source>Fern</source>
        <translation>蕨叶</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>蓝图</translation>
    </message>
    <message>
        <source>Terrazzo</source>
        <translation>水磨石</translation>
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
        <translation>极光</translation>
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
        <translation>没有可存放图像的位置</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>启用 %n 款字体…</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>停用</translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>停用 %n 款字体</numerusform>
        </translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>启用…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>启用其余样式…</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The style category of a family: Serif, Script and so on.</extracomment>
        <translation>风格</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>收藏集</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>字体厂商</translation>
    </message>
    <message>
        <source>None</source>
        <comment>style</comment>
        <extracomment>The family has no style category.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>None</source>
        <comment>foundry</comment>
        <extracomment>The family has no foundry.</extracomment>
        <translation>无</translation>
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
        <translation>数字</translation>
    </message>
    <message>
        <source>Punctuation &amp; Symbols</source>
        <translation>标点和符号</translation>
    </message>
    <message>
        <source>Kana</source>
        <translation>假名</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>谚文</translation>
    </message>
    <message>
        <source>Han</source>
        <extracomment>The Chinese characters.</extracomment>
        <translation>汉字</translation>
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
        <translation>没有字符对应此字形。</translation>
    </message>
</context>
<context>
    <name>CharacterNames</name>
    <message>
        <source>Uppercase letter</source>
        <extracomment>The general category that Unicode gives a character.</extracomment>
        <translation>大写字母</translation>
    </message>
    <message>
        <source>Lowercase letter</source>
        <translation>小写字母</translation>
    </message>
    <message>
        <source>Titlecase letter</source>
        <translation>词首大写字母</translation>
    </message>
    <message>
        <source>Modifier letter</source>
        <translation>修饰字母</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>字母</translation>
    </message>
    <message>
        <source>Mathematical symbol</source>
        <translation>数学符号</translation>
    </message>
    <message>
        <source>Currency symbol</source>
        <translation>货币符号</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Combining mark</source>
        <translation>组合符号</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>标点</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>A kind of character, not the key.</extracomment>
        <translation>空格</translation>
    </message>
    <message>
        <source>Private use</source>
        <extracomment>A kind of character.</extracomment>
        <translation>私用字符</translation>
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
        <translation>复制%1：%2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
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
        <translation>朱红</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森林</translation>
    </message>
    <message>
        <source>Aubergine</source>
        <translation>茄紫</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Lemon</source>
        <translation>柠檬</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>腮红</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>天蓝</translation>
    </message>
    <message>
        <source>Swap Text and Background</source>
        <translation>互换文字与背景颜色</translation>
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
        <translation>对比度偏低 %1:1</translation>
    </message>
    <message>
        <source>Contrast %1:1</source>
        <translation>对比度 %1:1</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>%1 — not available</source>
        <translation>%1 — 不可用</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>%1: took too long to read and was given up</source>
        <translation>%1：读取耗时过长，已放弃</translation>
    </message>
    <message>
        <source>%1: took too much time or memory to read and was given up</source>
        <translation>%1：读取耗费了过多的时间或内存，已放弃</translation>
    </message>
    <message>
        <source>%1: was given up: reading it led to what reading never needs</source>
        <translation>%1：已放弃，读取时出现了读取绝不需要的操作</translation>
    </message>
    <message>
        <source>%1: takes more memory than it may have</source>
        <translation>%1：所需内存超出允许的上限</translation>
    </message>
    <message>
        <source>%1: is damaged; reading it failed</source>
        <translation>%1：已损坏，读取失败</translation>
    </message>
    <message>
        <source>no new process can be started: %1</source>
        <translation>无法启动新进程：%1</translation>
    </message>
    <message>
        <source>%1: reading it needed something that fonts never need, so it was stopped</source>
        <translation>%1：读取时需要字体从不需要的操作，因此已中止</translation>
    </message>
    <message>
        <source>%1: its picture is too large</source>
        <translation>%1：生成的图片太大</translation>
    </message>
</context>
<context>
    <name>DesktopTrash</name>
    <message>
        <source>cannot move %1 to the Trash: its volume has none</source>
        <translation>无法将 %1 移到回收站：其所在卷没有回收站</translation>
    </message>
    <message>
        <source>cannot take %1 from the Trash: the name is taken</source>
        <translation>无法从回收站取回 %1：名称已被占用</translation>
    </message>
</context>
<context>
    <name>DetailMenu</name>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>复制为 CSS</translation>
    </message>
</context>
<context>
    <name>DiscoverFoundry</name>
    <message>
        <source>Independent Swiss type foundry offering original retail and custom typefaces with a contemporary aesthetic in the Swiss tradition.</source>
        <translation>独立的瑞士字体厂商，秉承瑞士传统，以当代审美推出原创零售字体与定制字体。</translation>
    </message>
    <message>
        <source>Type foundry of Kris Sowersby in Wellington, New Zealand.</source>
        <translation>Kris Sowersby 在新西兰惠灵顿创办的字体厂商。</translation>
    </message>
    <message>
        <source>Montréal-based type foundry offering free-to-try retail typefaces.</source>
        <translation>蒙特利尔的字体厂商，其零售字体可免费试用。</translation>
    </message>
    <message>
        <source>Berlin-based type design studio offering retail and bespoke typefaces, design software, research, and consultancy.</source>
        <translation>柏林的字体设计工作室，提供零售与定制字体、设计软件、研究和咨询。</translation>
    </message>
    <message>
        <source>Indonesian type foundry offering contemporary display and text families.</source>
        <translation>印度尼西亚的字体厂商，推出当代的标题和正文字体家族。</translation>
    </message>
    <message>
        <source>Type foundry from Gijón, Spain, offering typefaces with pay-what-you-want options.</source>
        <translation>西班牙希洪的字体厂商，部分字体由您自行定价。</translation>
    </message>
    <message>
        <source>Prague-based type foundry offering large variable families.</source>
        <translation>布拉格的字体厂商，推出庞大的可变字体家族。</translation>
    </message>
    <message>
        <source>Californian type foundry of James Edmondson, offering expressive display typefaces.</source>
        <translation>James Edmondson 在加利福尼亚创办的字体厂商，推出富有表现力的标题字体。</translation>
    </message>
    <message>
        <source>Stockholm-based type foundry of Göran Söderström.</source>
        <translation>Göran Söderström 在斯德哥尔摩创办的字体厂商。</translation>
    </message>
    <message>
        <source>Type foundry from Geneva, Switzerland.</source>
        <translation>瑞士日内瓦的字体厂商。</translation>
    </message>
    <message>
        <source>Type foundry offering typefaces for text and interfaces.</source>
        <translation>推出正文和界面字体的字体厂商。</translation>
    </message>
    <message>
        <source>Swiss type foundry offering typefaces and design books.</source>
        <translation>瑞士的字体厂商，推出字体和设计书籍。</translation>
    </message>
    <message>
        <source>Type foundry of Mattox Shuler, offering display families and workhorses.</source>
        <translation>Mattox Shuler 创办的字体厂商，推出标题字体家族和经久耐用的常备字体。</translation>
    </message>
    <message>
        <source>Californian type foundry of Amy and Jen Hood.</source>
        <translation>Amy 和 Jen Hood 在加利福尼亚创办的字体厂商。</translation>
    </message>
    <message>
        <source>Type foundry with a small catalogue of contemporary typefaces.</source>
        <translation>专注当代字体、作品少而精的字体厂商。</translation>
    </message>
    <message>
        <source>Type foundry of the lettering artist Erik Marinovich.</source>
        <translation>字母艺术家 Erik Marinovich 创办的字体厂商。</translation>
    </message>
    <message>
        <source>Type foundry of Dino dos Santos in Porto, Portugal.</source>
        <translation>Dino dos Santos 在葡萄牙波尔图创办的字体厂商。</translation>
    </message>
    <message>
        <source>The first open-source type foundry, launched in 2009, providing a curated collection of professional-quality free fonts like League Gothic and League Spartan.</source>
        <translation>首家开源字体厂商，成立于 2009 年，精选专业品质的免费字体，如 League Gothic 和 League Spartan。</translation>
    </message>
</context>
<context>
    <name>FaceInformation</name>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>字体家族</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Unique identifier</source>
        <translation>唯一标识符</translation>
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
        <translation>PostScript 名称</translation>
    </message>
    <message>
        <source>Trademark</source>
        <translation>商标</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>设计师</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Manufacturer’s address</source>
        <translation>制造商网址</translation>
    </message>
    <message>
        <source>Designer’s address</source>
        <translation>设计师网址</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Licence address</source>
        <translation>许可证网址</translation>
    </message>
    <message>
        <source>Typographic family</source>
        <translation>排版字体家族</translation>
    </message>
    <message>
        <source>Typographic style</source>
        <translation>排版样式</translation>
    </message>
    <message>
        <source>Compatible full name</source>
        <translation>兼容全名</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>示例文本</translation>
    </message>
    <message>
        <source>PostScript CID name</source>
        <translation>PostScript CID 名称</translation>
    </message>
    <message>
        <source>WWS family</source>
        <translation>WWS 字体家族</translation>
    </message>
    <message>
        <source>WWS style</source>
        <translation>WWS 样式</translation>
    </message>
    <message>
        <source>Palette for light backgrounds</source>
        <translation>浅色背景调色板</translation>
    </message>
    <message>
        <source>Palette for dark backgrounds</source>
        <translation>深色背景调色板</translation>
    </message>
    <message>
        <source>Variations PostScript name prefix</source>
        <translation>可变字体 PostScript 名称前缀</translation>
    </message>
    <message>
        <source>Installable</source>
        <translation>可安装</translation>
    </message>
    <message>
        <source>Restricted: not without the owner’s permission</source>
        <translation>受限：未经权利人许可不得嵌入</translation>
    </message>
    <message>
        <source>Preview and print</source>
        <translation>预览和打印</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>%1, bitmaps only</source>
        <extracomment>%1 is what a licence lets documents do with the font that they embed, such as &quot;Editable&quot;.</extracomment>
        <translation>%1，仅限位图</translation>
    </message>
    <message>
        <source>%1, no subsetting, bitmaps only</source>
        <translation>%1，不得子集化，仅限位图</translation>
    </message>
    <message>
        <source>%1, no subsetting</source>
        <translation>%1，不得子集化</translation>
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
        <translation>连字</translation>
    </message>
    <message>
        <source>Cursive Connection</source>
        <translation>连写</translation>
    </message>
    <message>
        <source>Letter Case</source>
        <translation>字母大小写</translation>
    </message>
    <message>
        <source>Vertical Substitution</source>
        <translation>竖排替换</translation>
    </message>
    <message>
        <source>Linguistic Rearrangement</source>
        <translation>语言重排</translation>
    </message>
    <message>
        <source>Number Spacing</source>
        <translation>数字间距</translation>
    </message>
    <message>
        <source>Smart Swashes</source>
        <translation>智能花饰字</translation>
    </message>
    <message>
        <source>Diacritics</source>
        <translation>变音符号</translation>
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
        <translation>字符重叠</translation>
    </message>
    <message>
        <source>Typographic Extras</source>
        <translation>排版附加功能</translation>
    </message>
    <message>
        <source>Mathematical Extras</source>
        <translation>数学附加功能</translation>
    </message>
    <message>
        <source>Ornament Sets</source>
        <translation>装饰符号集</translation>
    </message>
    <message>
        <source>Character Alternatives</source>
        <translation>字符替代字</translation>
    </message>
    <message>
        <source>Design Complexity</source>
        <translation>设计复杂度</translation>
    </message>
    <message>
        <source>Style Options</source>
        <translation>样式选项</translation>
    </message>
    <message>
        <source>Character Shape</source>
        <translation>字符形状</translation>
    </message>
    <message>
        <source>Number Case</source>
        <translation>数字形式</translation>
    </message>
    <message>
        <source>Text Spacing</source>
        <translation>文本间距</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>转写</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>注解</translation>
    </message>
    <message>
        <source>Kana Spacing</source>
        <translation>假名间距</translation>
    </message>
    <message>
        <source>Ideographic Spacing</source>
        <translation>表意文字间距</translation>
    </message>
    <message>
        <source>Unicode Decomposition</source>
        <translation>Unicode 分解</translation>
    </message>
    <message>
        <source>Ruby Kana</source>
        <translation>注音假名</translation>
    </message>
    <message>
        <source>CJK Symbol Alternatives</source>
        <translation>中日韩符号替代字</translation>
    </message>
    <message>
        <source>Ideographic Alternatives</source>
        <translation>表意文字替代字</translation>
    </message>
    <message>
        <source>CJK Vertical Roman Placement</source>
        <translation>中日韩竖排西文位置</translation>
    </message>
    <message>
        <source>Italic CJK Roman</source>
        <translation>中日韩西文斜体</translation>
    </message>
    <message>
        <source>Case-Sensitive Layout</source>
        <translation>区分大小写的布局</translation>
    </message>
    <message>
        <source>Alternate Kana</source>
        <translation>替代假名</translation>
    </message>
    <message>
        <source>Stylistic Alternatives</source>
        <translation>样式替代字</translation>
    </message>
    <message>
        <source>Contextual Alternatives</source>
        <translation>上下文替代字</translation>
    </message>
    <message>
        <source>Lower Case</source>
        <translation>小写</translation>
    </message>
    <message>
        <source>Upper Case</source>
        <translation>大写</translation>
    </message>
    <message>
        <source>Language Tag</source>
        <translation>语言标签</translation>
    </message>
    <message>
        <source>CJK Roman Spacing</source>
        <translation>中日韩西文间距</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>必需连字</translation>
    </message>
    <message>
        <source>Common Ligatures</source>
        <translation>常用连字</translation>
    </message>
    <message>
        <source>Rare Ligatures</source>
        <translation>罕用连字</translation>
    </message>
    <message>
        <source>Logos</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Rebus Pictures</source>
        <translation>画谜图形</translation>
    </message>
    <message>
        <source>Diphthong Ligatures</source>
        <translation>双元音连字</translation>
    </message>
    <message>
        <source>Squared Ligatures</source>
        <translation>方块连字</translation>
    </message>
    <message>
        <source>Abbreviated Squared Ligatures</source>
        <translation>缩略方块连字</translation>
    </message>
    <message>
        <source>Symbol Ligatures</source>
        <translation>符号连字</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>上下文连字</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>历史连字</translation>
    </message>
    <message>
        <source>Unconnected</source>
        <translation>不连接</translation>
    </message>
    <message>
        <source>Partially Connected</source>
        <translation>部分连接</translation>
    </message>
    <message>
        <source>Cursive</source>
        <translation>连写</translation>
    </message>
    <message>
        <source>Upper and Lower Case</source>
        <translation>大写和小写</translation>
    </message>
    <message>
        <source>All Capitals</source>
        <translation>全部大写</translation>
    </message>
    <message>
        <source>All Lower Case</source>
        <translation>全部小写</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>小型大写字母</translation>
    </message>
    <message>
        <source>Initial Capitals</source>
        <translation>首字母大写</translation>
    </message>
    <message>
        <source>Initial Capitals and Small Capitals</source>
        <translation>首字母大写，其余小型大写</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>统一大小写</translation>
    </message>
    <message>
        <source>Vertical Forms</source>
        <translation>竖排字形</translation>
    </message>
    <message>
        <source>Monospaced Numbers</source>
        <translation>等宽数字</translation>
    </message>
    <message>
        <source>Proportional Numbers</source>
        <translation>比例数字</translation>
    </message>
    <message>
        <source>Third-Width Numbers</source>
        <translation>三分宽数字</translation>
    </message>
    <message>
        <source>Quarter-Width Numbers</source>
        <translation>四分宽数字</translation>
    </message>
    <message>
        <source>Word Initial Swashes</source>
        <translation>词首花饰字</translation>
    </message>
    <message>
        <source>Word Final Swashes</source>
        <translation>词尾花饰字</translation>
    </message>
    <message>
        <source>Line Initial Swashes</source>
        <translation>行首花饰字</translation>
    </message>
    <message>
        <source>Line Final Swashes</source>
        <translation>行尾花饰字</translation>
    </message>
    <message>
        <source>Non-Final Swashes</source>
        <translation>非词尾花饰字</translation>
    </message>
    <message>
        <source>Show Diacritics</source>
        <translation>显示变音符号</translation>
    </message>
    <message>
        <source>Hide Diacritics</source>
        <translation>隐藏变音符号</translation>
    </message>
    <message>
        <source>Decompose Diacritics</source>
        <translation>分解变音符号</translation>
    </message>
    <message>
        <source>Normal Position</source>
        <translation>正常位置</translation>
    </message>
    <message>
        <source>Superiors</source>
        <translation>上标</translation>
    </message>
    <message>
        <source>Inferiors</source>
        <translation>下标</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>序数</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>科学下标</translation>
    </message>
    <message>
        <source>No Fractions</source>
        <translation>无分数</translation>
    </message>
    <message>
        <source>Vertical Fractions</source>
        <translation>上下分数</translation>
    </message>
    <message>
        <source>Diagonal Fractions</source>
        <translation>斜线分数</translation>
    </message>
    <message>
        <source>Prevent Overlap</source>
        <translation>防止重叠</translation>
    </message>
    <message>
        <source>Hyphens to Em Dash</source>
        <translation>连字符转为破折号</translation>
    </message>
    <message>
        <source>Hyphen to En Dash</source>
        <translation>连字符转为连接号</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>带斜线的零</translation>
    </message>
    <message>
        <source>Form Interrobang</source>
        <translation>组成疑问惊叹号</translation>
    </message>
    <message>
        <source>Smart Quotes</source>
        <translation>智能引号</translation>
    </message>
    <message>
        <source>Periods to Ellipsis</source>
        <translation>句点转为省略号</translation>
    </message>
    <message>
        <source>Hyphen to Minus</source>
        <translation>连字符转为减号</translation>
    </message>
    <message>
        <source>Asterisk to Multiply</source>
        <translation>星号转为乘号</translation>
    </message>
    <message>
        <source>Slash to Divide</source>
        <translation>斜线转为除号</translation>
    </message>
    <message>
        <source>Inequality Ligatures</source>
        <translation>不等号连字</translation>
    </message>
    <message>
        <source>Exponents</source>
        <translation>指数</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>数学希腊字母</translation>
    </message>
    <message>
        <source>No Ornaments</source>
        <translation>无装饰符号</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>杂锦符号</translation>
    </message>
    <message>
        <source>Pi Characters</source>
        <translation>Pi 字符</translation>
    </message>
    <message>
        <source>Fleurons</source>
        <translation>花形装饰</translation>
    </message>
    <message>
        <source>Decorative Borders</source>
        <translation>装饰边框</translation>
    </message>
    <message>
        <source>International Symbols</source>
        <translation>国际符号</translation>
    </message>
    <message>
        <source>Mathematical Symbols</source>
        <translation>数学符号</translation>
    </message>
    <message>
        <source>No Alternates</source>
        <translation>无替代字</translation>
    </message>
    <message>
        <source>Design Level 1</source>
        <translation>设计级别 1</translation>
    </message>
    <message>
        <source>Design Level 2</source>
        <translation>设计级别 2</translation>
    </message>
    <message>
        <source>Design Level 3</source>
        <translation>设计级别 3</translation>
    </message>
    <message>
        <source>Design Level 4</source>
        <translation>设计级别 4</translation>
    </message>
    <message>
        <source>Design Level 5</source>
        <translation>设计级别 5</translation>
    </message>
    <message>
        <source>No Style Options</source>
        <translation>无样式选项</translation>
    </message>
    <message>
        <source>Display Text</source>
        <translation>标题文本</translation>
    </message>
    <message>
        <source>Engraved Text</source>
        <translation>雕刻文本</translation>
    </message>
    <message>
        <source>Illuminated Capitals</source>
        <translation>彩饰大写字母</translation>
    </message>
    <message>
        <source>Titling Capitals</source>
        <translation>标题大写字母</translation>
    </message>
    <message>
        <source>Tall Capitals</source>
        <translation>高型大写字母</translation>
    </message>
    <message>
        <source>Traditional Characters</source>
        <translation>繁体字</translation>
    </message>
    <message>
        <source>Simplified Characters</source>
        <translation>简体字</translation>
    </message>
    <message>
        <source>JIS 1978 Characters</source>
        <translation>JIS 1978 字符</translation>
    </message>
    <message>
        <source>JIS 1983 Characters</source>
        <translation>JIS 1983 字符</translation>
    </message>
    <message>
        <source>JIS 1990 Characters</source>
        <translation>JIS 1990 字符</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 1</source>
        <translation>繁体字，替代 1</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 2</source>
        <translation>繁体字，替代 2</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 3</source>
        <translation>繁体字，替代 3</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 4</source>
        <translation>繁体字，替代 4</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 5</source>
        <translation>繁体字，替代 5</translation>
    </message>
    <message>
        <source>Expert Characters</source>
        <translation>专家字符</translation>
    </message>
    <message>
        <source>JIS 2004 Characters</source>
        <translation>JIS 2004 字符</translation>
    </message>
    <message>
        <source>Hojo Characters</source>
        <translation>补助汉字字符</translation>
    </message>
    <message>
        <source>NLC Characters</source>
        <translation>NLC 字符</translation>
    </message>
    <message>
        <source>Traditional Names Characters</source>
        <translation>传统人名字符</translation>
    </message>
    <message>
        <source>Lower Case Numbers</source>
        <translation>旧式数字</translation>
    </message>
    <message>
        <source>Upper Case Numbers</source>
        <translation>等高数字</translation>
    </message>
    <message>
        <source>Proportional Text</source>
        <translation>比例文本</translation>
    </message>
    <message>
        <source>Monospaced Text</source>
        <translation>等宽文本</translation>
    </message>
    <message>
        <source>Half-Width Text</source>
        <translation>半角文本</translation>
    </message>
    <message>
        <source>Third-Width Text</source>
        <translation>三分宽文本</translation>
    </message>
    <message>
        <source>Quarter-Width Text</source>
        <translation>四分宽文本</translation>
    </message>
    <message>
        <source>Alternate Proportional Text</source>
        <translation>替代比例文本</translation>
    </message>
    <message>
        <source>Alternate Half-Width Text</source>
        <translation>替代半角文本</translation>
    </message>
    <message>
        <source>No Transliteration</source>
        <translation>无转写</translation>
    </message>
    <message>
        <source>Hanja to Hangul</source>
        <translation>汉字转为谚文</translation>
    </message>
    <message>
        <source>Hiragana to Katakana</source>
        <translation>平假名转为片假名</translation>
    </message>
    <message>
        <source>Katakana to Hiragana</source>
        <translation>片假名转为平假名</translation>
    </message>
    <message>
        <source>Kana to Romanization</source>
        <translation>假名转为罗马字</translation>
    </message>
    <message>
        <source>Romanization to Hiragana</source>
        <translation>罗马字转为平假名</translation>
    </message>
    <message>
        <source>Romanization to Katakana</source>
        <translation>罗马字转为片假名</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 1</source>
        <translation>汉字转为谚文，替代 1</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 2</source>
        <translation>汉字转为谚文，替代 2</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 3</source>
        <translation>汉字转为谚文，替代 3</translation>
    </message>
    <message>
        <source>No Annotation</source>
        <translation>无注解</translation>
    </message>
    <message>
        <source>Box Annotation</source>
        <translation>方框注解</translation>
    </message>
    <message>
        <source>Rounded Box Annotation</source>
        <translation>圆角方框注解</translation>
    </message>
    <message>
        <source>Circle Annotation</source>
        <translation>圆圈注解</translation>
    </message>
    <message>
        <source>Inverted Circle Annotation</source>
        <translation>反白圆圈注解</translation>
    </message>
    <message>
        <source>Parenthesis Annotation</source>
        <translation>括号注解</translation>
    </message>
    <message>
        <source>Period Annotation</source>
        <translation>句点注解</translation>
    </message>
    <message>
        <source>Roman Numeral Annotation</source>
        <translation>罗马数字注解</translation>
    </message>
    <message>
        <source>Diamond Annotation</source>
        <translation>菱形注解</translation>
    </message>
    <message>
        <source>Inverted Box Annotation</source>
        <translation>反白方框注解</translation>
    </message>
    <message>
        <source>Inverted Rounded Box Annotation</source>
        <translation>反白圆角方框注解</translation>
    </message>
    <message>
        <source>Full-Width Kana</source>
        <translation>全角假名</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>比例假名</translation>
    </message>
    <message>
        <source>Full-Width Ideographs</source>
        <translation>全角表意文字</translation>
    </message>
    <message>
        <source>Proportional Ideographs</source>
        <translation>比例表意文字</translation>
    </message>
    <message>
        <source>Half-Width Ideographs</source>
        <translation>半角表意文字</translation>
    </message>
    <message>
        <source>Canonical Composition</source>
        <translation>规范组合</translation>
    </message>
    <message>
        <source>Compatibility Composition</source>
        <translation>兼容组合</translation>
    </message>
    <message>
        <source>Transcoding Composition</source>
        <translation>转码组合</translation>
    </message>
    <message>
        <source>No CJK Symbol Alternatives</source>
        <translation>无中日韩符号替代字</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 1</source>
        <translation>中日韩符号替代字 1</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 2</source>
        <translation>中日韩符号替代字 2</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 3</source>
        <translation>中日韩符号替代字 3</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 4</source>
        <translation>中日韩符号替代字 4</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 5</source>
        <translation>中日韩符号替代字 5</translation>
    </message>
    <message>
        <source>No Ideographic Alternatives</source>
        <translation>无表意文字替代字</translation>
    </message>
    <message>
        <source>Ideographic Alternative 1</source>
        <translation>表意文字替代字 1</translation>
    </message>
    <message>
        <source>Ideographic Alternative 2</source>
        <translation>表意文字替代字 2</translation>
    </message>
    <message>
        <source>Ideographic Alternative 3</source>
        <translation>表意文字替代字 3</translation>
    </message>
    <message>
        <source>Ideographic Alternative 4</source>
        <translation>表意文字替代字 4</translation>
    </message>
    <message>
        <source>Ideographic Alternative 5</source>
        <translation>表意文字替代字 5</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Horizontal Baseline</source>
        <translation>横排基线</translation>
    </message>
    <message>
        <source>Case-Sensitive Spacing</source>
        <translation>区分大小写的间距</translation>
    </message>
    <message>
        <source>Alternate Horizontal Kana</source>
        <translation>横排替代假名</translation>
    </message>
    <message>
        <source>Alternate Vertical Kana</source>
        <translation>竖排替代假名</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>上下文替代字</translation>
    </message>
    <message>
        <source>Swash Alternates</source>
        <translation>花饰替代字</translation>
    </message>
    <message>
        <source>Contextual Swash Alternates</source>
        <translation>上下文花饰替代字</translation>
    </message>
    <message>
        <source>Default Lower Case</source>
        <translation>默认小写</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>特小型大写字母</translation>
    </message>
    <message>
        <source>Default Upper Case</source>
        <translation>默认大写</translation>
    </message>
    <message>
        <source>Half-Width CJK Roman</source>
        <translation>半角中日韩西文</translation>
    </message>
    <message>
        <source>Proportional CJK Roman</source>
        <translation>比例中日韩西文</translation>
    </message>
    <message>
        <source>Default CJK Roman</source>
        <translation>默认中日韩西文</translation>
    </message>
    <message>
        <source>Full-Width CJK Roman</source>
        <translation>全角中日韩西文</translation>
    </message>
    <message>
        <source>No Stylistic Alternatives</source>
        <translation>无样式替代字</translation>
    </message>
    <message>
        <source>Stylistic Alternative %1</source>
        <translation>样式替代字 %1</translation>
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
        <translation>基字上方附加符号定位</translation>
    </message>
    <message>
        <source>Above-Base Substitutions</source>
        <translation>基字上方替换</translation>
    </message>
    <message>
        <source>Alternative Fractions</source>
        <translation>替代分数</translation>
    </message>
    <message>
        <source>Akhand</source>
        <translation>Akhand 合字</translation>
    </message>
    <message>
        <source>Below-Base Forms</source>
        <translation>基字下方字形</translation>
    </message>
    <message>
        <source>Below-Base Mark Positioning</source>
        <translation>基字下方附加符号定位</translation>
    </message>
    <message>
        <source>Below-Base Substitutions</source>
        <translation>基字下方替换</translation>
    </message>
    <message>
        <source>Petite Capitals From Capitals</source>
        <translation>大写转为特小型大写字母</translation>
    </message>
    <message>
        <source>Small Capitals From Capitals</source>
        <translation>大写转为小型大写字母</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>上下文替代字</translation>
    </message>
    <message>
        <source>Case-Sensitive Forms</source>
        <translation>区分大小写的字形</translation>
    </message>
    <message>
        <source>Glyph Composition / Decomposition</source>
        <translation>字形组合/分解</translation>
    </message>
    <message>
        <source>Conjunct Form After Ro</source>
        <translation>Ro 后合字字形</translation>
    </message>
    <message>
        <source>Contextual Half-Width Spacing</source>
        <translation>上下文半角间距</translation>
    </message>
    <message>
        <source>Conjunct Forms</source>
        <translation>合字字形</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>上下文连字</translation>
    </message>
    <message>
        <source>Centered CJK Punctuation</source>
        <translation>居中的中日韩标点</translation>
    </message>
    <message>
        <source>Capital Spacing</source>
        <translation>大写字母间距</translation>
    </message>
    <message>
        <source>Contextual Swash</source>
        <translation>上下文花饰字</translation>
    </message>
    <message>
        <source>Cursive Positioning</source>
        <translation>连写定位</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Discretionary Ligatures</source>
        <translation>自由连字</translation>
    </message>
    <message>
        <source>Denominators</source>
        <translation>分母</translation>
    </message>
    <message>
        <source>Dotless Forms</source>
        <translation>无点字形</translation>
    </message>
    <message>
        <source>Expert Forms</source>
        <translation>专家字形</translation>
    </message>
    <message>
        <source>Final Glyph on Line Alternates</source>
        <translation>行末替代字</translation>
    </message>
    <message>
        <source>Terminal Forms #2</source>
        <translation>词尾字形 #2</translation>
    </message>
    <message>
        <source>Terminal Forms #3</source>
        <translation>词尾字形 #3</translation>
    </message>
    <message>
        <source>Terminal Forms</source>
        <translation>词尾字形</translation>
    </message>
    <message>
        <source>Flattened Accent Forms</source>
        <translation>扁平重音字形</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>分数</translation>
    </message>
    <message>
        <source>Full Widths</source>
        <translation>全角</translation>
    </message>
    <message>
        <source>Half Forms</source>
        <translation>半形</translation>
    </message>
    <message>
        <source>Halant Forms</source>
        <translation>Halant 字形</translation>
    </message>
    <message>
        <source>Alternate Half Widths</source>
        <translation>替代半角</translation>
    </message>
    <message>
        <source>Historical Forms</source>
        <translation>历史字形</translation>
    </message>
    <message>
        <source>Horizontal Kana Alternates</source>
        <translation>横排替代假名</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>历史连字</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>谚文</translation>
    </message>
    <message>
        <source>Hojo Kanji Forms</source>
        <translation>补助汉字字形</translation>
    </message>
    <message>
        <source>Half Widths</source>
        <translation>半角</translation>
    </message>
    <message>
        <source>Initial Forms</source>
        <translation>词首字形</translation>
    </message>
    <message>
        <source>Isolated Forms</source>
        <translation>独立字形</translation>
    </message>
    <message>
        <source>Italics</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Justification Alternates</source>
        <translation>对齐替代字</translation>
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
        <translation>字偶间距</translation>
    </message>
    <message>
        <source>Left Bounds</source>
        <translation>左边界</translation>
    </message>
    <message>
        <source>Standard Ligatures</source>
        <translation>标准连字</translation>
    </message>
    <message>
        <source>Leading Jamo Forms</source>
        <translation>谚文初声字形</translation>
    </message>
    <message>
        <source>Lining Figures</source>
        <translation>等高数字</translation>
    </message>
    <message>
        <source>Localized Forms</source>
        <translation>本地化字形</translation>
    </message>
    <message>
        <source>Left-to-Right Alternates</source>
        <translation>从左到右替代字</translation>
    </message>
    <message>
        <source>Left-to-Right Mirrored Forms</source>
        <translation>从左到右镜像字形</translation>
    </message>
    <message>
        <source>Mark Positioning</source>
        <translation>附加符号定位</translation>
    </message>
    <message>
        <source>Medial Forms #2</source>
        <translation>词中字形 #2</translation>
    </message>
    <message>
        <source>Medial Forms</source>
        <translation>词中字形</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>数学希腊字母</translation>
    </message>
    <message>
        <source>Mark to Mark Positioning</source>
        <translation>附加符号间定位</translation>
    </message>
    <message>
        <source>Mark Positioning via Substitution</source>
        <translation>替换式附加符号定位</translation>
    </message>
    <message>
        <source>Alternate Annotation Forms</source>
        <translation>替代注解字形</translation>
    </message>
    <message>
        <source>NLC Kanji Forms</source>
        <translation>NLC 汉字字形</translation>
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
        <translation>旧式数字</translation>
    </message>
    <message>
        <source>Optical Bounds</source>
        <translation>光学边界</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>序数</translation>
    </message>
    <message>
        <source>Ornaments</source>
        <translation>装饰符号</translation>
    </message>
    <message>
        <source>Proportional Alternate Widths</source>
        <translation>比例替代宽度</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>特小型大写字母</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>比例假名</translation>
    </message>
    <message>
        <source>Proportional Figures</source>
        <translation>比例数字</translation>
    </message>
    <message>
        <source>Pre-Base Forms</source>
        <translation>基字前字形</translation>
    </message>
    <message>
        <source>Pre-Base Substitutions</source>
        <translation>基字前替换</translation>
    </message>
    <message>
        <source>Post-Base Forms</source>
        <translation>基字后字形</translation>
    </message>
    <message>
        <source>Post-Base Substitutions</source>
        <translation>基字后替换</translation>
    </message>
    <message>
        <source>Proportional Widths</source>
        <translation>比例宽度</translation>
    </message>
    <message>
        <source>Quarter Widths</source>
        <translation>四分宽</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>Required Contextual Alternates</source>
        <translation>必需上下文替代字</translation>
    </message>
    <message>
        <source>Rakar Forms</source>
        <translation>Rakar 字形</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>必需连字</translation>
    </message>
    <message>
        <source>Reph Form</source>
        <translation>Reph 字形</translation>
    </message>
    <message>
        <source>Right Bounds</source>
        <translation>右边界</translation>
    </message>
    <message>
        <source>Right-to-Left Alternates</source>
        <translation>从右到左替代字</translation>
    </message>
    <message>
        <source>Right-to-Left Mirrored Forms</source>
        <translation>从右到左镜像字形</translation>
    </message>
    <message>
        <source>Ruby Notation Forms</source>
        <translation>注音字形</translation>
    </message>
    <message>
        <source>Required Variation Alternates</source>
        <translation>必需可变替代字</translation>
    </message>
    <message>
        <source>Stylistic Alternates</source>
        <translation>样式替代字</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>科学下标</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>光学尺寸</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>小型大写字母</translation>
    </message>
    <message>
        <source>Simplified Forms</source>
        <translation>简体字形</translation>
    </message>
    <message>
        <source>Math Script-Style Alternates</source>
        <translation>数学上下标替代字</translation>
    </message>
    <message>
        <source>Stretching Glyph Decomposition</source>
        <translation>拉伸字形分解</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>下标</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>上标</translation>
    </message>
    <message>
        <source>Swash</source>
        <translation>花饰字</translation>
    </message>
    <message>
        <source>Titling</source>
        <translation>标题字</translation>
    </message>
    <message>
        <source>Trailing Jamo Forms</source>
        <translation>谚文终声字形</translation>
    </message>
    <message>
        <source>Traditional Name Forms</source>
        <translation>传统人名字形</translation>
    </message>
    <message>
        <source>Tabular Figures</source>
        <translation>等宽数字</translation>
    </message>
    <message>
        <source>Traditional Forms</source>
        <translation>繁体字形</translation>
    </message>
    <message>
        <source>Third Widths</source>
        <translation>三分宽</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>统一大小写</translation>
    </message>
    <message>
        <source>Alternate Vertical Metrics</source>
        <translation>替代竖排度量</translation>
    </message>
    <message>
        <source>Vattu Variants</source>
        <translation>Vattu 变体</translation>
    </message>
    <message>
        <source>Vertical Contextual Half-Width Spacing</source>
        <translation>竖排上下文半角间距</translation>
    </message>
    <message>
        <source>Vertical Alternates</source>
        <translation>竖排替代字</translation>
    </message>
    <message>
        <source>Alternate Vertical Half Metrics</source>
        <translation>替代竖排半角度量</translation>
    </message>
    <message>
        <source>Vowel Jamo Forms</source>
        <translation>谚文中声字形</translation>
    </message>
    <message>
        <source>Vertical Kana Alternates</source>
        <translation>竖排替代假名</translation>
    </message>
    <message>
        <source>Vertical Kerning</source>
        <translation>竖排字偶间距</translation>
    </message>
    <message>
        <source>Proportional Alternate Vertical Metrics</source>
        <translation>比例替代竖排度量</translation>
    </message>
    <message>
        <source>Vertical Alternates and Rotation</source>
        <translation>竖排替代字与旋转</translation>
    </message>
    <message>
        <source>Vertical Alternates for Rotation</source>
        <translation>用于旋转的竖排替代字</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>带斜线的零</translation>
    </message>
    <message>
        <source>Stylistic Set %1</source>
        <translation>样式集 %1</translation>
    </message>
    <message>
        <source>Character Variant %1</source>
        <translation>字符变体 %1</translation>
    </message>
</context>
<context>
    <name>FeedDownload</name>
    <message>
        <source>cannot read the release feed: %1</source>
        <translation>无法读取发布源：%1</translation>
    </message>
    <message>
        <source>the release server gives no feed: it answers with status %1</source>
        <translation>发布服务器未提供发布源：返回状态 %1</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is no https address</source>
        <translation>发布源的地址不是 https 地址</translation>
    </message>
    <message>
        <source>the release feed&apos;s address has a name or password in it</source>
        <translation>发布源的地址中含有用户名或密码</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is not secure: it must begin with https</source>
        <translation>发布源的地址不安全：必须以 https 开头</translation>
    </message>
    <message>
        <source>the release server leads to an address that is not secure</source>
        <translation>发布服务器指向了不安全的地址</translation>
    </message>
    <message>
        <source>the release server took too long to answer</source>
        <translation>发布服务器响应超时</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>发布源太大</translation>
    </message>
    <message>
        <source>the release server leads from one address to the next</source>
        <translation>发布服务器的地址不断重定向</translation>
    </message>
</context>
<context>
    <name>FeedUpdaterController</name>
    <message>
        <source>this build has no address of a release feed</source>
        <translation>此构建没有发布源地址</translation>
    </message>
    <message>
        <source>the running version is no number</source>
        <translation>正在运行的版本不是版本号</translation>
    </message>
</context>
<context>
    <name>FilePath</name>
    <message>
        <source>&quot;%1&quot; is no file URL: %2</source>
        <translation>“%1”不是文件 URL：%2</translation>
    </message>
    <message>
        <source>it does not begin with file:</source>
        <translation>不以 file: 开头</translation>
    </message>
    <message>
        <source>it names another host</source>
        <translation>指向其他主机</translation>
    </message>
    <message>
        <source>its path is not absolute</source>
        <translation>路径不是绝对路径</translation>
    </message>
    <message>
        <source>it has a query or a fragment</source>
        <translation>含有查询或片段</translation>
    </message>
    <message>
        <source>it has a broken percent escape</source>
        <translation>含有损坏的百分号转义</translation>
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
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>%1 changed while it was read</source>
        <translation>%1 在读取过程中发生了更改</translation>
    </message>
    <message>
        <source>the copy %1 differs from its source</source>
        <translation>副本 %1 与源文件不同</translation>
    </message>
</context>
<context>
    <name>FolderCommands</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>%1：无法读取</translation>
    </message>
    <message>
        <source>%1: has changed while in use</source>
        <translation>%1：在使用过程中发生了更改</translation>
    </message>
    <message>
        <source>has neither names nor a character map</source>
        <translation>既没有名称，也没有字符映射表</translation>
    </message>
    <message>
        <source>%1: has no face number %2</source>
        <translation>%1：没有编号为 %2 的字体</translation>
    </message>
    <message>
        <source>%1: has no named instance number %2</source>
        <translation>%1：没有编号为 %2 的命名实例</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1：没有此文件</translation>
    </message>
    <message>
        <source>%1: may not be read</source>
        <translation>%1：没有读取权限</translation>
    </message>
    <message>
        <source>%1: is a link that leads in a circle</source>
        <translation>%1：是循环链接</translation>
    </message>
    <message>
        <source>%1: is not a regular file</source>
        <translation>%1：不是普通文件</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1：无法打开：%2</translation>
    </message>
    <message>
        <source>%1: is larger than any font</source>
        <translation>%1：超出字体的大小上限</translation>
    </message>
    <message>
        <source>is a WOFF web font, which is not read</source>
        <translation>是 WOFF 网络字体，不予读取</translation>
    </message>
    <message>
        <source>is a WOFF2 web font, which is not read</source>
        <translation>是 WOFF2 网络字体，不予读取</translation>
    </message>
    <message>
        <source>is a Type 1 font, which is not read</source>
        <translation>是 Type 1 字体，不予读取</translation>
    </message>
    <message>
        <source>is a BDF bitmap font, which is not read</source>
        <translation>是 BDF 点阵字体，不予读取</translation>
    </message>
    <message>
        <source>is a PCF bitmap font, which is not read</source>
        <translation>是 PCF 点阵字体，不予读取</translation>
    </message>
    <message>
        <source>is compressed, which is not read</source>
        <translation>已压缩，不予读取</translation>
    </message>
    <message>
        <source>is not a font</source>
        <translation>不是字体</translation>
    </message>
    <message>
        <source>is a collection without faces</source>
        <translation>是空的字体集，不含字体</translation>
    </message>
    <message>
        <source>is larger than any font suitcase</source>
        <translation>超出字体套件的大小上限</translation>
    </message>
    <message>
        <source>is a suitcase without outline fonts</source>
        <translation>是不含轮廓字体的字体套件</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>ends within its header</source>
        <translation>在文件头内中断</translation>
    </message>
    <message>
        <source>holds a face that is not a font</source>
        <translation>含有并非字体的部分</translation>
    </message>
    <message>
        <source>has a damaged table directory</source>
        <translation>表目录已损坏</translation>
    </message>
    <message>
        <source>ends within its table directory</source>
        <translation>在表目录内中断</translation>
    </message>
    <message>
        <source>is shorter than its header says: %1 lies beyond the end</source>
        <extracomment>%1 is a table of the font, such as &quot;glyf&quot;.</extracomment>
        <translation>比文件头所述的短：%1 位于文件末尾之后</translation>
    </message>
</context>
<context>
    <name>FontFiles</name>
    <message>
        <source>There is no such file.</source>
        <translation>此文件不存在。</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>您没有读取此文件的权限。</translation>
    </message>
    <message>
        <source>This file is too large to be a font.</source>
        <translation>此文件太大，不可能是字体。</translation>
    </message>
    <message>
        <source>This file holds no font that Lorva can show.</source>
        <translation>此文件中没有 Lorva 能显示的字体。</translation>
    </message>
    <message>
        <source>This font is damaged and cannot be shown.</source>
        <translation>此字体已损坏，无法显示。</translation>
    </message>
    <message>
        <source>This file cannot be read from its disk.</source>
        <translation>无法从磁盘读取此文件。</translation>
    </message>
    <message>
        <source>This font has no name, so no program could offer it.</source>
        <translation>此字体没有名称，因此没有程序能列出它。</translation>
    </message>
    <message>
        <source>Only files of this computer can be shown.</source>
        <translation>只能显示这台电脑上的文件。</translation>
    </message>
    <message>
        <source>So many files cannot be shown at once.</source>
        <translation>文件太多，无法同时显示。</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>未启用</translation>
    </message>
    <message>
        <source>Some styles are active</source>
        <translation>部分样式已启用</translation>
    </message>
    <message>
        <source>Active through the system</source>
        <translation>已由系统启用</translation>
    </message>
    <message>
        <source>Active, copied to the Fonts folder</source>
        <translation>已启用，已复制到字体文件夹</translation>
    </message>
    <message>
        <source>Active, registered in place</source>
        <translation>已启用，已原位注册</translation>
    </message>
    <message>
        <source>Another font has this file’s name in the Fonts folder</source>
        <translation>字体文件夹中已有另一款字体使用此文件名</translation>
    </message>
    <message>
        <source>Not Shown</source>
        <translation>未显示</translation>
    </message>
    <message>
        <source>Font Files</source>
        <translation>字体文件</translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n 款字体</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a folder or a device, not a font file.</source>
        <translation>这是文件夹或设备，不是字体文件。</translation>
    </message>
</context>
<context>
    <name>FontInspector</name>
    <message>
        <source>License</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Embedding</source>
        <extracomment>Whether documents may embed the font.</extracomment>
        <translation>嵌入</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Vendor</source>
        <extracomment>Whose web page it is.</extracomment>
        <translation>供应商</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>设计师</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A language, and the characters of it that the font lacks.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>支持</translation>
    </message>
    <message>
        <source>Languages with Missing Characters</source>
        <translation>缺少字符的语言</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Whether a family is switched on.</extracomment>
        <translation>未启用</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Whether a family is switched on, and whether the system did it.</extracomment>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Active (System)</source>
        <translation>已启用（系统）</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Family Name</source>
        <translation>字体家族名称</translation>
    </message>
    <message>
        <source>Style Name</source>
        <translation>样式名称</translation>
    </message>
    <message>
        <source>Full Name</source>
        <translation>全名</translation>
    </message>
    <message>
        <source>PostScript Name</source>
        <translation>PostScript 名称</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Whether the family is switched on.</extracomment>
        <translation>状态</translation>
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
        <translation>字形数</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Features of a font that belong to no group.</extracomment>
        <translation>其他</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
</context>
<context>
    <name>FontInspectorService</name>
    <message>
        <source>Italic</source>
        <extracomment>Axes of variable fonts.</extracomment>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>光学尺寸</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>倾斜</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>字重</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>字宽</translation>
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
        <translation>另一程序正在启用或停用字体</translation>
    </message>
</context>
<context>
    <name>FontQuizPoster</name>
    <message>
        <source>en</source>
        <extracomment>The language of the translation, such as &quot;de&quot; or &quot;zh_CN&quot;: dates are written in it.</extracomment>
        <translation>zh_CN</translation>
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
        <translation>已整理字体</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles on %1.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%1，手工整理为衬线、无衬线、标题、等宽和装饰风格。

一切就绪，静候下一个项目。记得把它做得漂亮。</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles by %1 on %2.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>%2，由 %1 手工整理为衬线、无衬线、标题、等宽和装饰风格。

一切就绪，静候下一个项目。记得把它做得漂亮。</translation>
    </message>
</context>
<context>
    <name>FontScanPhase</name>
    <message>
        <source>Finding fonts…</source>
        <translation>正在查找字体…</translation>
    </message>
    <message numerus="yes">
        <source>Finding fonts… %1</source>
        <translation>
            <numerusform>正在查找字体… %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 fonts</source>
        <translation>
            <numerusform>正在扫描 %1/%2 款字体</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Identifying fonts… %1 of %2</source>
        <translation>
            <numerusform>正在识别字体… %1/%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在准备…</translation>
    </message>
</context>
<context>
    <name>FontsFolderEntries</name>
    <message>
        <source>the file named %1 in the Fonts folder is another font than %2</source>
        <translation>字体文件夹中名为 %1 的文件与 %2 不是同一款字体</translation>
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
        <translation>已启用 %1</translation>
    </message>
    <message>
        <source>Tried to activate %1</source>
        <translation>尝试启用 %1</translation>
    </message>
    <message>
        <source>De-activated %1</source>
        <translation>已停用 %1</translation>
    </message>
    <message>
        <source>Tried to de-activate %1</source>
        <translation>尝试停用 %1</translation>
    </message>
    <message>
        <source>Brought back %1</source>
        <translation>已恢复 %1</translation>
    </message>
    <message>
        <source>Tried to bring back %1</source>
        <translation>尝试恢复 %1</translation>
    </message>
    <message>
        <source>Copied to the Fonts folder</source>
        <translation>已复制到字体文件夹</translation>
    </message>
    <message>
        <source>Registered in place</source>
        <translation>已原位注册</translation>
    </message>
    <message>
        <source>Copies to the Trash, registrations withdrawn</source>
        <translation>副本移到回收站，注册已撤销</translation>
    </message>
    <message>
        <source>Moved to %1</source>
        <translation>已移到 %1</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已移动</translation>
    </message>
    <message>
        <source>De-activation undone</source>
        <translation>已撤销停用</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln were there already</source>
        <translation>
            <numerusform>%Ln 个原已存在</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <extracomment>Files.</extracomment>
        <translation>
            <numerusform>%Ln 个失败</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left when it was stopped</source>
        <translation>
            <numerusform>%Ln 个因中止而未处理</numerusform>
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
        <translation>启用历史</translation>
    </message>
    <message>
        <source>No font was switched on or off yet.</source>
        <translation>尚未启用或停用过字体。</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
</context>
<context>
    <name>JsonReader</name>
    <message>
        <source>unknown value</source>
        <translation>未知值</translation>
    </message>
    <message>
        <source>the integer is out of range</source>
        <translation>整数超出范围</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>键重复</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>文档为空</translation>
    </message>
    <message>
        <source>invalid UTF-8</source>
        <translation>UTF-8 无效</translation>
    </message>
    <message>
        <source>control character in a string</source>
        <translation>字符串中含有控制字符</translation>
    </message>
    <message>
        <source>unclosed string</source>
        <translation>字符串未闭合</translation>
    </message>
    <message>
        <source>broken escape in a string</source>
        <translation>字符串中的转义已损坏</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>文档太大</translation>
    </message>
    <message>
        <source>malformed JSON</source>
        <translation>JSON 格式错误</translation>
    </message>
    <message>
        <source>the value was read already</source>
        <translation>该值已读取过</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>嵌套太深</translation>
    </message>
    <message>
        <source>expected a string</source>
        <translation>应为字符串</translation>
    </message>
    <message>
        <source>expected an integer</source>
        <translation>应为整数</translation>
    </message>
    <message>
        <source>expected a number</source>
        <translation>应为数字</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>应为 true 或 false</translation>
    </message>
    <message>
        <source>broken base64</source>
        <translation>base64 已损坏</translation>
    </message>
    <message>
        <source>expected an array</source>
        <translation>应为数组</translation>
    </message>
    <message>
        <source>expected an object</source>
        <translation>应为对象</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>A key that must be there, in a JSON document.</extracomment>
        <translation>缺失</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>未读取到任何内容</translation>
    </message>
    <message>
        <source>text after the end</source>
        <translation>结尾之后还有文本</translation>
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
        <translation>--window-size 需为 WIDTHxHEIGHT（点），如 1720x920</translation>
    </message>
    <message>
        <source>--view takes grid or list</source>
        <translation>--view 需为 grid 或 list</translation>
    </message>
    <message>
        <source>--color takes white, black, custom or image</source>
        <translation>--color 需为 white、black、custom 或 image</translation>
    </message>
    <message>
        <source>--sheet takes activate, deactivate, history or settings</source>
        <translation>--sheet 需为 activate、deactivate、history 或 settings</translation>
    </message>
    <message>
        <source>--stage takes text, waterfall or comparison</source>
        <translation>--stage 需为 text、waterfall 或 comparison</translation>
    </message>
    <message>
        <source>--inspector takes features or info</source>
        <translation>--inspector 需为 features 或 info</translation>
    </message>
    <message>
        <source>--quiz takes intro, playing or poster</source>
        <translation>--quiz 需为 intro、playing 或 poster</translation>
    </message>
    <message>
        <source>--welcome takes scene or card</source>
        <translation>--welcome 需为 scene 或 card</translation>
    </message>
    <message>
        <source>--appearance takes light or dark</source>
        <translation>--appearance 需为 light 或 dark</translation>
    </message>
    <message>
        <source>--source takes all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>--source 需为 all、active、inactive、style:ID、collection:NAME、foundry:ID 或 discover</translation>
    </message>
    <message>
        <source>--image takes one of: %1</source>
        <translation>--image 需为以下之一：%1</translation>
    </message>
    <message>
        <source>--weight takes a number from 100 to 900</source>
        <translation>--weight 需为 100 到 900 之间的数字</translation>
    </message>
    <message>
        <source>--point-size takes a positive number of points</source>
        <translation>--point-size 需为正数，单位为点</translation>
    </message>
    <message>
        <source>add the fonts of a folder for this start (repeatable)</source>
        <translation>本次启动时加入文件夹中的字体（可重复）</translation>
    </message>
    <message>
        <source>start in all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>启动时显示 all、active、inactive、style:ID、collection:NAME、foundry:ID 或 discover</translation>
    </message>
    <message>
        <source>start with this text in the search field</source>
        <translation>启动时在搜索栏中填入此文本</translation>
    </message>
    <message>
        <source>start with this family selected</source>
        <translation>启动时选中此字体家族</translation>
    </message>
    <message>
        <source>open this family in the detail view</source>
        <translation>在详情视图中打开此字体家族</translation>
    </message>
    <message>
        <source>show it as text, waterfall or comparison there</source>
        <translation>在其中以 text、waterfall 或 comparison 显示</translation>
    </message>
    <message>
        <source>show its features or info beside it</source>
        <translation>在旁边显示其 features 或 info</translation>
    </message>
    <message>
        <source>start in the font quiz: its intro, playing or its poster</source>
        <translation>启动时进入字体小测验：intro、playing 或 poster</translation>
    </message>
    <message>
        <source>show the welcome, whether it was seen before or not</source>
        <translation>显示欢迎界面，无论之前是否看过</translation>
    </message>
    <message>
        <source>do not show it</source>
        <translation>不显示欢迎界面</translation>
    </message>
    <message>
        <source>start in this view</source>
        <translation>启动时使用此视图</translation>
    </message>
    <message>
        <source>start with specimens of this size, in points</source>
        <translation>启动时的样张大小，单位为点</translation>
    </message>
    <message>
        <source>start with specimens of this weight, 100 to 900</source>
        <translation>启动时的样张字重，100 到 900</translation>
    </message>
    <message>
        <source>start with white, black or custom colours, or an image</source>
        <translation>启动时使用白色、黑色、自定颜色或图像</translation>
    </message>
    <message>
        <source>start with this background image (--color image)</source>
        <translation>启动时使用此背景图像（--color image）</translation>
    </message>
    <message>
        <source>start with this image as logo</source>
        <translation>启动时以此图像为徽标</translation>
    </message>
    <message>
        <source>start with this sample text</source>
        <translation>启动时使用此示例文本</translation>
    </message>
    <message>
        <source>light or dark, whatever the desktop is</source>
        <translation>light 或 dark，不随桌面设置</translation>
    </message>
    <message>
        <source>show the window off screen, write its picture as PNG, and quit</source>
        <translation>在屏幕外显示窗口，将其图片写为 PNG，然后退出</translation>
    </message>
    <message>
        <source>size of that picture, in points (default 1720x920, of font files 1160x760)</source>
        <translation>该图片的大小，单位为点（默认 1720x920，字体文件为 1160x760）</translation>
    </message>
    <message>
        <source>open activate, deactivate (for --select), history or settings for it</source>
        <translation>为该图片打开 activate、deactivate（针对 --select）、history 或 settings</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>未知参数“%1”</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>If Lorva runs already, its window comes to the front and takes the options over.</source>
        <translation>如果 Lorva 已在运行，其窗口会移到最前，并采用这些选项。</translation>
    </message>
    <message>
        <source>QT_SCALE_FACTOR=2 makes the picture twice as dense. QT_LOGGING_RULES=&quot;lorva.*=true&quot; logs.</source>
        <translation>QT_SCALE_FACTOR=2 使图片的像素密度加倍。QT_LOGGING_RULES=&quot;lorva.*=true&quot; 输出日志。</translation>
    </message>
    <message>
        <source>LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events.</source>
        <translation>LORVA_TRACE=FILE 以 Trace Event 格式记录启动过程的耗时。</translation>
    </message>
    <message>
        <source>Usage: lorva [options] [FILE|FOLDER]...</source>
        <extracomment>Options begin with &quot;--&quot;, and words in capitals stand for what is typed after them; both, and the words that an option takes, stay as they are.</extracomment>
        <translation>用法：lorva [选项] [FILE|FOLDER]...</translation>
    </message>
    <message>
        <source>Shows every font of this computer as a live specimen; font files that are given, by path or as a file: address, in a window of their own.</source>
        <translation>以实时样张显示这台电脑上的所有字体；以路径或 file: 地址给出的字体文件则在单独的窗口中显示。</translation>
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
        <translation>无法注册字体：%1</translation>
    </message>
    <message>
        <source>The registration cannot be withdrawn: %1</source>
        <translation>无法撤销注册：%1</translation>
    </message>
    <message>
        <source>The font is registered already</source>
        <translation>该字体已注册</translation>
    </message>
    <message>
        <source>The font is not registered</source>
        <translation>该字体未注册</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>不是绝对路径</translation>
    </message>
    <message>
        <source>something else has the name of its link</source>
        <translation>其链接名称已被占用</translation>
    </message>
</context>
<context>
    <name>LogoImage</name>
    <message>
        <source>The image could not be kept.</source>
        <translation>无法保存该图像。</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>Show Logo</source>
        <translation>显示徽标</translation>
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
        <translation>间距</translation>
    </message>
    <message>
        <source>The logo cannot be read</source>
        <translation>无法读取徽标</translation>
    </message>
</context>
<context>
    <name>LogoTile</name>
    <message>
        <source>Logo</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Choose another image</source>
        <translation>选择其他图像</translation>
    </message>
    <message>
        <source>Drop an image here, or click to choose one.</source>
        <translation>将图像拖放到此处，或点击选择。</translation>
    </message>
</context>
<context>
    <name>LorvaAppModelFolders</name>
    <message>
        <source>%1 is no UTF-8 text and cannot be kept in the preferences</source>
        <translation>%1 不是 UTF-8 文本，无法保存在偏好设置中</translation>
    </message>
    <message>
        <source>there is no watched folder with the id %1</source>
        <translation>没有 ID 为 %1 的监视文件夹</translation>
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
        <translation>要删除收藏集吗？</translation>
    </message>
    <message>
        <source>This removes the collection but keeps the fonts on your Mac.</source>
        <translation>这会移除该收藏集，但字体仍保留在您的电脑上。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Hide “%1”?</source>
        <translation>要隐藏“%1”吗？</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>这会将该字体厂商从边栏中隐藏。</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>This Change Is Not Possible</source>
        <translation>无法进行此更改</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>OrganizationChanges</name>
    <message>
        <source>there is no collection with the id “%1”</source>
        <translation>没有 ID 为“%1”的收藏集</translation>
    </message>
    <message>
        <source>there is a collection with the name “%1” already</source>
        <translation>已有名为“%1”的收藏集</translation>
    </message>
    <message>
        <source>there is a collection with the id “%1” already</source>
        <translation>已有 ID 为“%1”的收藏集</translation>
    </message>
    <message>
        <source>there is no style category with the id “%1”</source>
        <translation>没有 ID 为“%1”的风格</translation>
    </message>
    <message>
        <source>there is a style category with the name “%1” already</source>
        <translation>已有名为“%1”的风格</translation>
    </message>
    <message>
        <source>there is a style category with the id “%1” already</source>
        <translation>已有 ID 为“%1”的风格</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>the style category “%1” cannot be renamed or deleted</source>
        <translation>风格“%1”不能重命名或删除</translation>
    </message>
</context>
<context>
    <name>OrganizationFile</name>
    <message>
        <source>the name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>format: expected &quot;%1&quot;</source>
        <translation>format：应为“%1”</translation>
    </message>
    <message>
        <source>version: there is no such version</source>
        <translation>version：没有此版本</translation>
    </message>
    <message>
        <source>the file is of version %1, which needs a newer Lorva</source>
        <translation>文件的版本为 %1，需要更新的 Lorva</translation>
    </message>
    <message>
        <source>the organisation takes %1 bytes as a file, and no more than %2 can be imported; the logos in display settings may be too many</source>
        <translation>整理数据存为文件需 %1 字节，而最多只能导入 %2 字节；可能是显示设置中的徽标过多</translation>
    </message>
</context>
<context>
    <name>OrganizationStore</name>
    <message>
        <source>the preferences took no change</source>
        <translation>偏好设置未接受更改</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>PDF document</source>
        <translation>PDF 文档</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG 绘图</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 图片</translation>
    </message>
</context>
<context>
    <name>PaneTexts</name>
    <message>
        <source>Active</source>
        <extracomment>A heading: fonts that are switched on for every program.</extracomment>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>A heading: fonts that are not switched on.</extracomment>
        <translation>未启用</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A heading: a page that introduces type foundries.</extracomment>
        <translation>发现</translation>
    </message>
    <message>
        <source>All Fonts</source>
        <translation>所有字体</translation>
    </message>
    <message>
        <source>No Inactive Fonts</source>
        <translation>没有未启用的字体</translation>
    </message>
    <message>
        <source>Every font in your folders is switched on.</source>
        <translation>文件夹中的字体均已启用。</translation>
    </message>
    <message>
        <source>Watch a folder to see the fonts in it without switching them on.</source>
        <translation>监视一个文件夹，无需启用即可查看其中的字体。</translation>
    </message>
    <message>
        <source>No Fonts Here</source>
        <translation>此处没有字体</translation>
    </message>
    <message>
        <source>None of the families that belong here are on this computer.</source>
        <translation>这台电脑上没有属于此处的字体家族。</translation>
    </message>
    <message>
        <source>An Empty Collection</source>
        <translation>空收藏集</translation>
    </message>
    <message>
        <source>Drag fonts onto it in the sidebar, or choose it in a font’s menu.</source>
        <translation>将字体拖到边栏中的此收藏集上，或在字体的菜单中选取它。</translation>
    </message>
    <message>
        <source>No Active Fonts</source>
        <translation>没有已启用的字体</translation>
    </message>
    <message>
        <source>Fonts that every program can use appear here.</source>
        <translation>所有程序都能使用的字体会显示在这里。</translation>
    </message>
    <message>
        <source>No Fonts of This Style</source>
        <translation>没有此风格的字体</translation>
    </message>
    <message>
        <source>Choose the style in a font’s menu, or drag fonts onto it in the sidebar.</source>
        <translation>在字体的菜单中选取此风格，或将字体拖到边栏中的此风格上。</translation>
    </message>
    <message>
        <source>None of this foundry’s families are on this computer.</source>
        <translation>这台电脑上没有此字体厂商的字体家族。</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>没有字体</translation>
    </message>
    <message>
        <source>Neither this system nor your folders hold a font that can be read.</source>
        <translation>系统和您的文件夹中都没有可读取的字体。</translation>
    </message>
    <message>
        <source>Scan Cancelled</source>
        <translation>扫描已取消</translation>
    </message>
    <message>
        <source>Press F5 to look for the fonts of this system and of your folders again.</source>
        <translation>按 F5 可重新查找系统和您的文件夹中的字体。</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>There is nothing to export</source>
        <translation>没有可导出的内容</translation>
    </message>
    <message>
        <source>The page is too large for a file</source>
        <translation>页面太大，无法存为文件</translation>
    </message>
    <message>
        <source>The page is too large for a PNG; a PDF or SVG can hold it</source>
        <translation>页面太大，无法存为 PNG；可存为 PDF 或 SVG</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>图片无法编码</translation>
    </message>
    <message>
        <source>the picture does not fit into memory</source>
        <translation>内存不足，无法容纳图片</translation>
    </message>
    <message>
        <source>%1: the name of a picture ends in .png, .svg or .pdf</source>
        <translation>%1：图片的名称须以 .png、.svg 或 .pdf 结尾</translation>
    </message>
    <message>
        <source>%1: refusing to write over a font file</source>
        <translation>%1：拒绝覆盖字体文件</translation>
    </message>
</context>
<context>
    <name>PreferenceDatabase</name>
    <message>
        <source>the file cannot be written</source>
        <translation>文件无法写入</translation>
    </message>
    <message>
        <source>another process is moving a damaged file</source>
        <translation>另一进程正在移动已损坏的文件</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>数据库已损坏</translation>
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
        <translation>样张</translation>
    </message>
</context>
<context>
    <name>RecordsJson</name>
    <message>
        <source>%1 is no colour mode</source>
        <translation>%1 不是颜色模式</translation>
    </message>
</context>
<context>
    <name>ReleaseFeed</name>
    <message>
        <source>the release feed cannot be read: %1</source>
        <translation>发布源无法读取：%1</translation>
    </message>
    <message>
        <source>version: expected numbers with dots between them</source>
        <translation>version：应为以点分隔的数字</translation>
    </message>
    <message>
        <source>date: expected a day such as 2026-11-22</source>
        <translation>date：应为日期，如 2026-11-22</translation>
    </message>
    <message>
        <source>page: expected an https address</source>
        <translation>page：应为 https 地址</translation>
    </message>
    <message>
        <source>the release feed is made for a newer Lorva: its format is %1, not %2</source>
        <translation>发布源适用于更新的 Lorva：其格式为 %1，而非 %2</translation>
    </message>
    <message>
        <source>the release feed is about another product</source>
        <translation>发布源属于其他产品</translation>
    </message>
    <message>
        <source>the release feed&apos;s key is not 32 bytes in Base64</source>
        <translation>发布源的密钥不是 32 字节的 Base64</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>发布源太大</translation>
    </message>
    <message>
        <source>the release feed is not signed by the makers of Lorva</source>
        <translation>发布源未经 Lorva 的制作者签名</translation>
    </message>
</context>
<context>
    <name>Restoration</name>
    <message>
        <source>It is not in the Trash any more</source>
        <translation>已不在回收站中</translation>
    </message>
    <message>
        <source>Another file has taken its place</source>
        <translation>原位置已被其他文件占用</translation>
    </message>
</context>
<context>
    <name>RunLock</name>
    <message>
        <source>cannot lock %1: another process holds it</source>
        <translation>无法锁定 %1：已被另一进程占用</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>the file&apos;s path is no UTF-8 text</source>
        <translation>文件路径不是 UTF-8 文本</translation>
    </message>
</context>
<context>
    <name>SafeImage</name>
    <message>
        <source>The picture has too many pixels to be read</source>
        <translation>图片的像素太多，无法读取</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read</source>
        <translation>图片已损坏，无法读取</translation>
    </message>
    <message>
        <source>This is no picture in a format that can be read (PNG, JPEG, GIF, WebP, BMP or SVG)</source>
        <translation>这不是可读取格式的图片（PNG、JPEG、GIF、WebP、BMP 或 SVG）</translation>
    </message>
    <message>
        <source>Pictures in this format need an addition to the desktop’s toolkit that is not installed</source>
        <translation>读取此格式的图片需要桌面工具包的附加组件，但尚未安装</translation>
    </message>
    <message>
        <source>The file is too large to be read as a picture</source>
        <translation>文件太大，无法作为图片读取</translation>
    </message>
    <message>
        <source>no room for a picture</source>
        <translation>没有容纳图片的空间</translation>
    </message>
    <message>
        <source>The drawing is damaged and cannot be read</source>
        <translation>绘图已损坏，无法读取</translation>
    </message>
    <message>
        <source>The drawing is too complicated to be shown</source>
        <translation>绘图太复杂，无法显示</translation>
    </message>
    <message>
        <source>no memory for the drawing</source>
        <translation>没有容纳绘图的内存</translation>
    </message>
</context>
<context>
    <name>SampleTextPanel</name>
    <message>
        <source>Reset Look</source>
        <translation>重置外观</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>示例文本</translation>
    </message>
    <message>
        <source>Blank: a sentence for each script</source>
        <translation>留空：每种文字各用一个例句</translation>
    </message>
    <message>
        <source>Size, weight, colors, logo and text as they were at first</source>
        <translation>大小、字重、颜色、徽标和文本恢复为初始状态</translation>
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
        <translation>数字</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊文</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里尔文</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯来文</translation>
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
        <translation>韩文</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>“%1” is not there.</source>
        <translation>“%1”不存在。</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>“%1”不是文件夹。</translation>
    </message>
    <message>
        <source>You do not have permission to look into “%1”.</source>
        <translation>您没有查看“%1”的权限。</translation>
    </message>
    <message>
        <source>“%1” has a name that is not valid text, so it cannot be remembered.</source>
        <translation>“%1”的名称不是有效文本，无法记住。</translation>
    </message>
    <message>
        <source>“%1” could not be looked at.</source>
        <translation>“%1”无法查看。</translation>
    </message>
    <message>
        <source>Scanning fonts…</source>
        <translation>正在扫描字体…</translation>
    </message>
    <message>
        <source>No new fonts added</source>
        <translation>没有添加新字体</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t find any new fonts in the selected location.</source>
        <translation>Lorva 未在所选位置找到新字体。</translation>
    </message>
    <message numerus="yes">
        <source>Added %1 fonts</source>
        <translation>
            <numerusform>已添加 %1 款字体</numerusform>
        </translation>
    </message>
    <message>
        <source>You can find them in your library.</source>
        <translation>您可以在字体库中找到它们。</translation>
    </message>
    <message>
        <source>Choose one or more folders of font files to include in your library.</source>
        <translation>选择一个或多个含有字体文件的文件夹，将其纳入字体库。</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>监视</translation>
    </message>
    <message numerus="yes">
        <source>%1 more folders could not be added.</source>
        <translation>
            <numerusform>另有 %1 个文件夹未能添加。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SidebarActions</name>
    <message>
        <source>New Collection</source>
        <translation>新建收藏集</translation>
    </message>
</context>
<context>
    <name>SidebarTree</name>
    <message>
        <source>Library</source>
        <translation>字体库</translation>
    </message>
    <message>
        <source>Styles</source>
        <extracomment>The style categories of fonts: Serif, Script and so on.</extracomment>
        <translation>风格</translation>
    </message>
    <message>
        <source>Foundries</source>
        <translation>字体厂商</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>收藏集</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>风格</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>字体厂商</translation>
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
        <translation>已启用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Fonts that are not switched on, in the sidebar.</extracomment>
        <translation>未启用</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A page that introduces type foundries, in the sidebar.</extracomment>
        <translation>发现</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>字体目录</translation>
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
            <numerusform>另外 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleCategories</name>
    <message>
        <source>Serif</source>
        <translation>衬线</translation>
    </message>
    <message>
        <source>Sans-Serif</source>
        <translation>无衬线</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>A style of fonts: those for large sizes.</extracomment>
        <translation>标题</translation>
    </message>
    <message>
        <source>Mono</source>
        <extracomment>A style of fonts: those whose letters are all of one width.</extracomment>
        <translation>等宽</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>A style of fonts: those that look like handwriting.</extracomment>
        <translation>手写</translation>
    </message>
    <message>
        <source>Decorative</source>
        <extracomment>A style of fonts.</extracomment>
        <translation>装饰</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>cannot empty %1: %2</source>
        <translation>无法清空 %1：%2</translation>
    </message>
    <message>
        <source>cannot empty the trace %1: %2</source>
        <extracomment>The trace says where the program spent its time.</extracomment>
        <translation>无法清空跟踪记录 %1：%2</translation>
    </message>
    <message>
        <source>cannot find %1: %2</source>
        <translation>找不到 %1：%2</translation>
    </message>
    <message>
        <source>cannot lock %1: %2</source>
        <translation>无法锁定 %1：%2</translation>
    </message>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>无法查看 %1：%2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>无法创建 %1：%2</translation>
    </message>
    <message>
        <source>cannot move %1: %2</source>
        <translation>无法移动 %1：%2</translation>
    </message>
    <message>
        <source>cannot move to the Trash %1: %2</source>
        <translation>无法将 %1 移到回收站：%2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>cannot remove %1: %2</source>
        <translation>无法移除 %1：%2</translation>
    </message>
    <message>
        <source>cannot take from the Trash %1: %2</source>
        <translation>无法从回收站取回 %1：%2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>无法在 %1 中写入：%2</translation>
    </message>
    <message>
        <source>cannot write the trace %1: %2</source>
        <translation>无法写入跟踪记录 %1：%2</translation>
    </message>
</context>
<context>
    <name>Trace</name>
    <message>
        <source>cannot write the trace %1: not a regular file</source>
        <translation>无法写入跟踪记录 %1：不是普通文件</translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>Details: %1.</source>
        <translation>详细信息：%1。</translation>
    </message>
    <message>
        <source>Lorva Couldn’t Check for Updates</source>
        <translation>Lorva 无法检查更新</translation>
    </message>
    <message>
        <source>The server that announces new versions can’t be reached. Check your internet connection, then try again.</source>
        <translation>无法连接到发布新版本的服务器。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>The server that announces new versions took too long to answer. Try again in a while.</source>
        <translation>发布新版本的服务器响应超时。请稍后重试。</translation>
    </message>
    <message>
        <source>The server that announces new versions has none to announce right now. Try again in a while.</source>
        <translation>发布新版本的服务器目前没有可用的版本信息。请稍后重试。</translation>
    </message>
    <message>
        <source>The connection to the server that announces new versions is not secure, so nothing was read from it. If you are on a public network, try again on another one.</source>
        <translation>与发布新版本的服务器之间的连接不安全，因此未读取任何内容。如果您使用的是公共网络，请换一个网络重试。</translation>
    </message>
    <message>
        <source>The answer does not come from the makers of Lorva, so it was not believed. Try again on another network.</source>
        <translation>收到的回应并非来自 Lorva 的制作者，因此未予采信。请换一个网络重试。</translation>
    </message>
    <message>
        <source>New versions are announced in a way that this version is too old to understand. Look for a newer one where you got Lorva.</source>
        <translation>新版本的发布方式已更改，此版本过旧，无法识别。请到您获取 Lorva 的地方查找更新的版本。</translation>
    </message>
    <message>
        <source>The server announces another program. Look for a newer version where you got Lorva.</source>
        <translation>服务器发布的是另一程序。请到您获取 Lorva 的地方查找更新的版本。</translation>
    </message>
    <message>
        <source>The answer can’t be understood. Some networks answer in the server’s place until you sign in: open a web page, then try again.</source>
        <translation>无法识别收到的回应。有些网络在您登录之前会代替服务器作出回应：请打开一个网页，然后重试。</translation>
    </message>
    <message>
        <source>Version %1 was released on %2. You have version %3.</source>
        <translation>版本 %1 已于%2发布。您的版本是 %3。</translation>
    </message>
    <message>
        <source>Lorva %1 Is Available</source>
        <translation>Lorva %1 现已推出</translation>
    </message>
    <message>
        <source>Open Release Page</source>
        <translation>打开发布页面</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>You’re Up to Date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>There is no newer version than yours, Lorva %1.</source>
        <translation>没有比您的 Lorva %1 更新的版本。</translation>
    </message>
    <message>
        <source>Updates Come with Your System</source>
        <translation>更新随系统提供</translation>
    </message>
    <message>
        <source>This copy of Lorva does not look for new versions by itself: your system’s software updates bring new versions.</source>
        <translation>此 Lorva 不会自行检查新版本：新版本通过系统的软件更新提供。</translation>
    </message>
    <message>
        <source>This copy of Lorva was not told properly where new versions are announced. Your system’s software updates, or the place where you got Lorva, bring new versions.</source>
        <translation>此 Lorva 未正确配置新版本的发布地址。新版本可通过系统的软件更新，或从您获取 Lorva 的地方获得。</translation>
    </message>
</context>
<context>
    <name>WatchedFolderStore</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>%1 cannot be made: a file has that name</source>
        <translation>无法创建 %1：已有同名文件</translation>
    </message>
</context>
<context>
    <name>WindowPicture</name>
    <message>
        <source>the picture could not be encoded</source>
        <translation>图片未能编码</translation>
    </message>
</context>
<context>
    <name>Withdrawal</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
    <message>
        <source>%1 lies in a Fonts folder, where fonts are active</source>
        <translation>%1 位于字体文件夹中，其中的字体处于启用状态</translation>
    </message>
</context>
<context>
    <name>lorva</name>
    <message>
        <source>no display to open a window on; start it in a desktop session, or make a picture with --screenshot FILE</source>
        <translation>没有可用于打开窗口的显示器；请在桌面会话中启动，或使用 --screenshot FILE 生成图片</translation>
    </message>
    <message>
        <source>%1; see lorva --help</source>
        <translation>%1；参见 lorva --help</translation>
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
        <translation>徽标</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>A logo is shown.</source>
        <translation>已显示徽标。</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>自定颜色</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserCollectionView</name>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserEmptyStateView</name>
    <message>
        <source>Watch Folder…</source>
        <translation>监视文件夹…</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>无结果</translation>
    </message>
    <message>
        <source>No fonts match “%1”.</source>
        <translation>没有与“%1”匹配的字体。</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserTopBar</name>
    <message>
        <source>Size and Weight</source>
        <translation>大小和字重</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>示例文本</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>How the fonts are shown, as a noun; spoken.</extracomment>
        <translation>视图</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>网格</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>列表</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterCellsView</name>
    <message>
        <source>Characters</source>
        <translation>字符</translation>
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
        <translation>字符或字形</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>字形</translation>
    </message>
    <message numerus="yes">
        <source>%1 found</source>
        <extracomment>Characters or glyphs.</extracomment>
        <translation>
            <numerusform>找到 %1 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 glyphs</source>
        <translation>
            <numerusform>%1 个字形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>No Glyphs Found</source>
        <translation>未找到字形</translation>
    </message>
    <message>
        <source>No Characters Found</source>
        <translation>未找到字符</translation>
    </message>
    <message>
        <source>This face has no glyphs.</source>
        <translation>此字体没有字形。</translation>
    </message>
    <message>
        <source>This face has no characters.</source>
        <translation>此字体没有字符。</translation>
    </message>
    <message>
        <source>Copy Character</source>
        <translation>复制字符</translation>
    </message>
    <message>
        <source>Copy Code Point</source>
        <translation>复制码位</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>复制名称</translation>
    </message>
    <message>
        <source>Copy Glyph Name</source>
        <translation>复制字形名称</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>加入暂存栏</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>已复制 %1</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterPopoverViewController</name>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>没有字符对应此字形。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The kind of a character, and the block that it belongs to.</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Code Point</source>
        <translation>码位</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>字形</translation>
    </message>
    <message>
        <source>Glyph Name</source>
        <translation>字形名称</translation>
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
        <translation>复制</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>加入暂存栏</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterTrayView</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Tray: %1</source>
        <extracomment>Characters that were collected, to be copied together.</extracomment>
        <translation>暂存栏：%1</translation>
    </message>
</context>
<context>
    <name>lorva::ColorChooser</name>
    <message>
        <source>Color Code</source>
        <translation>颜色代码</translation>
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
        <translation>自定颜色</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>背景图像</translation>
    </message>
</context>
<context>
    <name>lorva::ComparisonView</name>
    <message>
        <source>Add Family…</source>
        <translation>添加字体家族…</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>排列方式</translation>
    </message>
    <message>
        <source>Beside</source>
        <extracomment>How the compared families are arranged: beside each other.</extracomment>
        <translation>并排</translation>
    </message>
    <message>
        <source>Overlaid</source>
        <extracomment>How the compared families are arranged: one over the other.</extracomment>
        <translation>叠加</translation>
    </message>
    <message>
        <source>Match</source>
        <extracomment>What the compared families have in common: their size or their x-height; spoken.</extracomment>
        <translation>匹配依据</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>相同大小</translation>
    </message>
    <message>
        <source>Same x-Height</source>
        <translation>相同 x 高度</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>Add Family</source>
        <translation>添加字体家族</translation>
    </message>
</context>
<context>
    <name>lorva::DetailPreviewView</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>lorva::DetailTopBar</name>
    <message>
        <source>Text</source>
        <extracomment>Shows the family as one text that can be edited.</extracomment>
        <translation>文本</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <extracomment>Shows the same text in ever smaller sizes.</extracomment>
        <translation>字号阶梯</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Shows several families together.</extracomment>
        <translation>比较</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>上一个字体家族</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>下一个字体家族</translation>
    </message>
    <message>
        <source>Size, Weight, Letter Spacing</source>
        <translation>大小、字重、字符间距</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Search Characters</source>
        <translation>搜索字符</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverFoundryItem</name>
    <message>
        <source>Visit %1</source>
        <translation>访问 %1</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverLinkButton</name>
    <message>
        <source>Visit</source>
        <extracomment>Opens the web page of a foundry.</extracomment>
        <translation>访问</translation>
    </message>
    <message>
        <source>Open Website</source>
        <translation>打开网站</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverViewController</name>
    <message>
        <source>Discover</source>
        <translation>发现</translation>
    </message>
    <message>
        <source>Type Foundries</source>
        <translation>字体厂商</translation>
    </message>
</context>
<context>
    <name>lorva::FamilyPicker</name>
    <message>
        <source>Families</source>
        <translation>字体家族</translation>
    </message>
    <message>
        <source>No Families</source>
        <translation>没有字体家族</translation>
    </message>
    <message>
        <source>Search Families</source>
        <translation>搜索字体家族</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
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
            <numerusform>%Ln 个样式</numerusform>
        </translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesBar</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <translation>字号阶梯</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesFooter</name>
    <message>
        <source>Files That Failed…</source>
        <translation>失败的文件…</translation>
    </message>
    <message>
        <source>Show in Lorva</source>
        <translation>在 Lorva 中显示</translation>
    </message>
    <message>
        <source>Activate All…</source>
        <translation>全部启用…</translation>
    </message>
    <message>
        <source>De-activate…</source>
        <translation>停用…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>启用其余样式…</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>启用…</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesList</name>
    <message>
        <source>Fonts in the Files</source>
        <translation>文件中的字体</translation>
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
        <translation>正在读取文件</translation>
    </message>
    <message>
        <source>The fonts will be here in a moment.</source>
        <translation>字体稍后就会显示在这里。</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>没有字体</translation>
    </message>
    <message>
        <source>None of these files could be opened.</source>
        <translation>这些文件都无法打开。</translation>
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
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>lorva::FontInspectorViewController</name>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>Features</source>
        <extracomment>The OpenType features of a font.</extracomment>
        <translation>特性</translation>
    </message>
    <message>
        <source>Info</source>
        <extracomment>Facts about a font.</extracomment>
        <translation>信息</translation>
    </message>
</context>
<context>
    <name>lorva::FontInstallSheetController</name>
    <message>
        <source>Choose how to activate this font family in macOS. Both methods make it available in every app on your Mac.</source>
        <translation>选择在系统中启用此字体家族的方式。两种方式都能让它在这台电脑的所有应用中使用。</translation>
    </message>
    <message>
        <source>Copy to Fonts Folder</source>
        <extracomment>A way to activate fonts.</extracomment>
        <translation>复制到字体文件夹</translation>
    </message>
    <message>
        <source>Copies the font files into your user Fonts folder. Works even if the originals move or go offline.</source>
        <translation>将字体文件复制到您的用户字体文件夹。即使原始文件被移走或离线，仍可使用。</translation>
    </message>
    <message>
        <source>Register in Place</source>
        <extracomment>A way to activate fonts: their files stay where they are.</extracomment>
        <translation>原位注册</translation>
    </message>
    <message>
        <source>Activates the font from its current location, but deactivates if the source moves.</source>
        <translation>从当前位置启用字体，但源文件移走后会停用。</translation>
    </message>
    <message>
        <source>Remember this choice (change later in Settings)</source>
        <translation>记住此选择（以后可在“设置”中更改）</translation>
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
        <translation>无法载入“%1”，改以系统字体显示。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCardView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>无法载入“%1”，改以系统字体显示。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCategoryView</name>
    <message numerus="yes">
        <source>%1, key %2, %3 fonts</source>
        <extracomment>A style of fonts, the key that chooses it, and how many fonts have it; spoken.</extracomment>
        <translation>
            <numerusform>%1，按键 %2，%3 款字体</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCompletionPosterView</name>
    <message>
        <source>Save as Picture…</source>
        <translation>存为图片…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Save as Picture</source>
        <translation>存为图片</translation>
    </message>
    <message>
        <source>Organized Fonts</source>
        <translation>已整理的字体</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizIntroView</name>
    <message>
        <source>Every font is already categorized.</source>
        <translation>所有字体均已归类。</translation>
    </message>
    <message>
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. Don&apos;t worry, you can change the style for a font later.</source>
        <translation>为每款字体选择一种风格，它随后会出现在该风格的文件夹中。别担心，以后还可以更改字体的风格。</translation>
    </message>
    <message numerus="yes">
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</source>
        <extracomment>The number of forms goes by %2.</extracomment>
        <translation>
            <numerusform>为每款字体选择一种风格，它随后会出现在该风格的文件夹中。我们已替您归类了 %1 款，还有 %2 款需要您亲自过目。别担心，以后还可以更改字体的风格。</numerusform>
        </translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Begins the quiz.</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>Let&apos;s organize your fonts</source>
        <translation>来整理您的字体吧</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizStageView</name>
    <message>
        <source>Card %1 of %2. Press 1 to 6 to choose its style, Space to skip it, Backspace to take the last choice back.</source>
        <translation>第 %1 张卡片，共 %2 张。按 1 到 6 选择风格，按空格键跳过，按退格键撤回上一次选择。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The card that is shown, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Space skips a card. Backspace takes the last one back.</source>
        <translation>按空格键跳过卡片，按退格键撤回上一张。</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizViewController</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Font Quiz</source>
        <translation>字体小测验</translation>
    </message>
    <message>
        <source>“%1” could not be put into %2: %3</source>
        <translation>无法将“%1”归入“%2”：%3</translation>
    </message>
    <message>
        <source>The last choice could not be taken back: %1</source>
        <translation>无法撤回上一次选择：%1</translation>
    </message>
</context>
<context>
    <name>lorva::FontsSettingsTab</name>
    <message>
        <source>Watch Folder</source>
        <translation>监视文件夹</translation>
    </message>
    <message>
        <source>Remove Folder</source>
        <translation>移除文件夹</translation>
    </message>
    <message>
        <source>When activating fonts:</source>
        <translation>启用字体时：</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>每次都询问</translation>
    </message>
    <message>
        <source>Always copy to Fonts folder</source>
        <translation>始终复制到字体文件夹</translation>
    </message>
    <message>
        <source>Always register in place</source>
        <translation>始终原位注册</translation>
    </message>
    <message>
        <source>Watched Folders</source>
        <translation>监视的文件夹</translation>
    </message>
    <message>
        <source>Lorva scans these folders for font files and includes them in your library without installing them on your Mac.</source>
        <translation>Lorva 会扫描这些文件夹中的字体文件并将其纳入字体库，但不会将其安装到您的电脑上。</translation>
    </message>
    <message>
        <source>Activating Fonts</source>
        <translation>启用字体</translation>
    </message>
    <message>
        <source>Copying duplicates font files into your user Fonts folder. Registering activates fonts from their current location, but they deactivate if the source moves.</source>
        <translation>复制会将字体文件的副本放入您的用户字体文件夹。注册则从当前位置启用字体，但源文件移走后会停用。</translation>
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
        <translation>“%1”已不存在</translation>
    </message>
    <message>
        <source>“%1” may not be read</source>
        <translation>没有读取“%1”的权限</translation>
    </message>
    <message>
        <source>“%1” is no file</source>
        <translation>“%1”不是文件</translation>
    </message>
    <message>
        <source>“%1” is too large</source>
        <translation>“%1”太大</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>无法读取“%1”</translation>
    </message>
    <message>
        <source>Choose an Image</source>
        <translation>选择图像</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>What was dropped is no picture</source>
        <translation>拖放的内容不是图片</translation>
    </message>
</context>
<context>
    <name>lorva::ImageThumbnail</name>
    <message>
        <source>Delete removes it.</source>
        <translation>按 Delete 键可将其移除。</translation>
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
        <translation>关闭</translation>
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
        <translation>复制</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>在浏览器中打开</translation>
    </message>
</context>
<context>
    <name>lorva::InfoValueText</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>lorva::InlineEditHandler</name>
    <message>
        <source>Sample text</source>
        <translation>示例文本</translation>
    </message>
</context>
<context>
    <name>lorva::InspectorFeaturesView</name>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset Features and Axes</source>
        <translation>重置特性和轴</translation>
    </message>
    <message>
        <source>Axes</source>
        <extracomment>The variation axes of a font, such as Weight.</extracomment>
        <translation>轴</translation>
    </message>
    <message>
        <source>No OpenType Features</source>
        <translation>没有 OpenType 特性</translation>
    </message>
    <message>
        <source>This font doesn&apos;t expose any OpenType features.</source>
        <translation>此字体未提供任何 OpenType 特性。</translation>
    </message>
</context>
<context>
    <name>lorva::InstanceButton</name>
    <message>
        <source>Custom</source>
        <extracomment>Settings of a variable font that are none of its named instances.</extracomment>
        <translation>自定</translation>
    </message>
    <message>
        <source>Instance: %1</source>
        <translation>实例：%1</translation>
    </message>
    <message>
        <source>Instance</source>
        <extracomment>A named setting of a variable font, such as Condensed Bold.</extracomment>
        <translation>实例</translation>
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
        <translation>新建收藏集</translation>
    </message>
    <message>
        <source>Rename Collection</source>
        <translation>重命名收藏集</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>删除收藏集</translation>
    </message>
    <message>
        <source>Add to Collection</source>
        <translation>添加到收藏集</translation>
    </message>
    <message>
        <source>Remove from Collection</source>
        <translation>从收藏集移除</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>更改风格</translation>
    </message>
    <message>
        <source>New Style</source>
        <translation>新建风格</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>重命名风格</translation>
    </message>
    <message>
        <source>Delete Style</source>
        <translation>删除风格</translation>
    </message>
    <message>
        <source>Change Foundry</source>
        <translation>更改字体厂商</translation>
    </message>
    <message>
        <source>Rename Foundry</source>
        <translation>重命名字体厂商</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>隐藏字体厂商</translation>
    </message>
    <message>
        <source>Show Foundry</source>
        <translation>显示字体厂商</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaApplicationDelegate</name>
    <message>
        <source>All Fonts</source>
        <translation>所有字体</translation>
    </message>
    <message>
        <source>Lorva is a better way to browse, test, and manage your fonts. Organize them into collections, test logo images next to text, and turn fonts on or off as needed.</source>
        <translation>Lorva 让浏览、测试和管理字体更得心应手。您可以将字体整理成收藏集，测试徽标图像与文字的搭配，并按需启用或停用字体。</translation>
    </message>
    <message>
        <source>Made for people who can never have enough fonts.</source>
        <translation>献给永远嫌字体不够多的人。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaRootSplitViewController</name>
    <message>
        <source>Organize Fonts</source>
        <translation>整理字体</translation>
    </message>
    <message>
        <source>Export Specimen</source>
        <translation>导出样张</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaSettingsViewModel</name>
    <message>
        <source>This folder is not watched any more.</source>
        <translation>此文件夹已不再受监视。</translation>
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
        <translation>关于 Lorva</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Organize Fonts…</source>
        <translation>整理字体…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>新建收藏集</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Scan Folders Again</source>
        <translation>重新扫描文件夹</translation>
    </message>
    <message>
        <source>Export Specimen…</source>
        <translation>导出样张…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>%1 is what was done last, such as &quot;New Collection&quot;.</extracomment>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>复制为 CSS</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Files That Failed…</source>
        <translation>失败的文件…</translation>
    </message>
    <message>
        <source>Activation History…</source>
        <translation>启用历史…</translation>
    </message>
    <message>
        <source>F&amp;onts</source>
        <extracomment>The titles of the menus, each with the letter that opens it.</extracomment>
        <translation>字体(&amp;O)</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>启用…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>启用其余样式…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>进入全屏</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>网格</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>列表</translation>
    </message>
    <message>
        <source>Larger Specimens</source>
        <translation>放大样张</translation>
    </message>
    <message>
        <source>Smaller Specimens</source>
        <translation>缩小样张</translation>
    </message>
    <message>
        <source>Standard Specimen Size</source>
        <translation>标准样张大小</translation>
    </message>
    <message>
        <source>Back to All Cards</source>
        <translation>返回所有卡片</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>下一个字体家族</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>上一个字体家族</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>显示文本</translation>
    </message>
    <message>
        <source>Show Waterfall</source>
        <translation>显示字号阶梯</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>撤销“%1”</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做“%1”</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>退出全屏</translation>
    </message>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>启用 %n 款字体…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>停用 %n 款字体</numerusform>
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

浏览、测试和整理这台电脑上的所有字体。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>lorva::OnboardingOverlay</name>
    <message>
        <source>Welcome to Lorva</source>
        <translation>欢迎使用 Lorva</translation>
    </message>
    <message>
        <source>Letters of your fonts fall. Press any key to go on.</source>
        <translation>您字体中的字母正在飘落。按任意键继续。</translation>
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
        <translation>重命名收藏集…</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>删除收藏集</translation>
    </message>
    <message>
        <source>Hide from Sidebar</source>
        <translation>从边栏中隐藏</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>新建收藏集</translation>
    </message>
    <message>
        <source>Activate Fonts…</source>
        <translation>启用字体…</translation>
    </message>
    <message>
        <source>De-activate Fonts</source>
        <translation>停用字体</translation>
    </message>
    <message>
        <source>Rename Foundry…</source>
        <translation>重命名字体厂商…</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>隐藏字体厂商</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>这会将该字体厂商从边栏中隐藏。</translation>
    </message>
    <message>
        <source>Hidden Foundries</source>
        <translation>已隐藏的字体厂商</translation>
    </message>
    <message>
        <source>Create an empty collection.</source>
        <translation>新建空收藏集。</translation>
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
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>lorva::SaturationField</name>
    <message>
        <source>Saturation and Brightness</source>
        <translation>饱和度和亮度</translation>
    </message>
    <message>
        <source>Saturation %1 %, brightness %2 %</source>
        <translation>饱和度 %1 %，亮度 %2 %</translation>
    </message>
</context>
<context>
    <name>lorva::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarFooter</name>
    <message>
        <source>Add Folder…</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %Ln fonts</source>
        <extracomment>A row of the sidebar, and how many fonts it leads to; spoken.</extracomment>
        <translation>
            <numerusform>%1，%Ln 款字体</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::SidebarOutlineView</name>
    <message>
        <source>Sidebar</source>
        <translation>边栏</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarRowCellView</name>
    <message>
        <source>Name</source>
        <extracomment>Of a collection or foundry that is being renamed.</extracomment>
        <translation>名称</translation>
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
        <translation>字符间距</translation>
    </message>
    <message>
        <source>Specimen size</source>
        <translation>样张大小</translation>
    </message>
    <message>
        <source>Specimen weight</source>
        <translation>样张字重</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>预览大小</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>字符间距</translation>
    </message>
    <message>
        <source>%1 points</source>
        <extracomment>The size of letters; spoken.</extracomment>
        <translation>%1 点</translation>
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
        <translation>启用…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <extracomment>A small button that switches one style of a family off; &quot;Active&quot; says that it is on.</extracomment>
        <translation>停用</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>De-activate %1</source>
        <translation>停用 %1</translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation>启用 %1</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowView</name>
    <message>
        <source>Regular</source>
        <extracomment>A style without a name of its own, as fonts call it.</extracomment>
        <translation>常规</translation>
    </message>
    <message>
        <source>“%1” could not be loaded.</source>
        <translation>无法载入“%1”。</translation>
    </message>
    <message>
        <source>In one file with %1: they are activated and de-activated together.</source>
        <translation>与 %1 在同一文件中：将一并启用和停用。</translation>
    </message>
    <message>
        <source>Shown in the preview.</source>
        <translation>正在预览中显示。</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are the styles that are in the same file as this one.</extracomment>
        <translation>与 %1 同文件</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>A style that the system has switched on, which the user cannot change.</extracomment>
        <translation>系统</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowsView</name>
    <message>
        <source>Styles</source>
        <translation>样式</translation>
    </message>
</context>
<context>
    <name>lorva::UpdateCommands</name>
    <message>
        <source>Looking for a newer release…</source>
        <translation>正在查找新版本…</translation>
    </message>
</context>
<context>
    <name>lorva::VariantBar</name>
    <message>
        <source>Variant</source>
        <extracomment>One of the widths or optical sizes of a family.</extracomment>
        <translation>变体</translation>
    </message>
    <message>
        <source>More Variants</source>
        <translation>更多变体</translation>
    </message>
    <message numerus="yes">
        <source>%n More</source>
        <extracomment>So many variants of a family that have no room beside the others.</extracomment>
        <translation>
            <numerusform>另外 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderDelegate</name>
    <message>
        <source>No fonts</source>
        <translation>没有字体</translation>
    </message>
    <message numerus="yes">
        <source>%1 fonts</source>
        <translation>
            <numerusform>%1 款字体</numerusform>
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
        <translation>监视的文件夹</translation>
    </message>
    <message>
        <source>No folders yet. Drop folders of fonts here, or press +.</source>
        <translation>尚无文件夹。将含有字体的文件夹拖放到此处，或按 +。</translation>
    </message>
</context>
<context>
    <name>lorva::WaterfallView</name>
    <message>
        <source>Waterfall</source>
        <translation>字号阶梯</translation>
    </message>
</context>
<context>
    <name>lorvactl</name>
    <message>
        <source>Makes fonts of watched folders, and font files, available to every program. One line for each file: &quot;copied&quot;, &quot;registered&quot; or, when a file of its name is there already, &quot;skipped&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too. Nothing is replaced.</source>
        <translation>使监视的文件夹中的字体以及字体文件可供所有程序使用。每个文件一行：“copied”“registered”，或在已有同名文件时为“skipped”；制表符；文件。“also”、制表符、字体家族：表示这些文件中也有该字体家族的字体。不会替换任何内容。</translation>
    </message>
    <message>
        <source>A word with a slash is a file, every other one a family; a lone - reads families from standard input, one per line.</source>
        <translation>含斜线的词是文件，其他均为字体家族；单独的 - 从标准输入读取字体家族，每行一个。</translation>
    </message>
    <message>
        <source>copy the files into your Fonts folder: works even if the originals move or go offline</source>
        <translation>将文件复制到您的字体文件夹：即使原始文件被移走或离线，仍可使用</translation>
    </message>
    <message>
        <source>activate them where they are, for as long as they stay there</source>
        <translation>在当前位置启用，只要文件仍在原处便有效</translation>
    </message>
    <message>
        <source>(without --method, the one chosen as the default)</source>
        <translation>（未指定 --method 时，采用选定的默认方式）</translation>
    </message>
    <message>
        <source>the families of this collection; may be given more than once</source>
        <translation>此收藏集的字体家族；可多次指定</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too; may be given more than once</source>
        <translation>同时纳入 DIR 下的字体；可多次指定</translation>
    </message>
    <message>
        <source>only tell what would be done</source>
        <translation>仅说明将执行的操作</translation>
    </message>
    <message>
        <source>one JSON object instead of lines</source>
        <translation>以一个 JSON 对象代替各行</translation>
    </message>
    <message>
        <source>--method takes copy or register</source>
        <translation>--method 需为 copy 或 register</translation>
    </message>
    <message>
        <source>activate needs --method copy or --method register, as no default is chosen</source>
        <translation>activate 需要 --method copy 或 --method register，因为尚未选定默认方式</translation>
    </message>
    <message>
        <source>registered, but its link is missing, so that no program sees it; the next activation makes it again</source>
        <translation>已注册，但其链接缺失，因此没有程序能看到它；下次启用时会重新创建</translation>
    </message>
    <message>
        <source>registered, but gone; its registration will be withdrawn</source>
        <translation>已注册，但文件已消失；其注册将被撤销</translation>
    </message>
    <message>
        <source>active by a link that the books do not know; they will take it in</source>
        <translation>经由启用记录中没有的链接启用；将补入启用记录</translation>
    </message>
    <message>
        <source>gone, and the books do not know its link, which will be removed</source>
        <translation>已消失，且启用记录中没有其链接；该链接将被移除</translation>
    </message>
    <message>
        <source>a copy that has gone from the Fonts folder; the books will forget it</source>
        <translation>字体文件夹中的该副本已消失；将从启用记录中删去</translation>
    </message>
    <message>
        <source>another program is switching fonts on or off now</source>
        <translation>另一程序现正在启用或停用字体</translation>
    </message>
    <message>
        <source>a program ended while it switched fonts on or off; the next activation finishes its books</source>
        <translation>有程序在启用或停用字体时中断；下次启用时会补全启用记录</translation>
    </message>
    <message>
        <source>not there now; its place in the list is kept</source>
        <translation>当前不存在；仍保留其在列表中的位置</translation>
    </message>
    <message>
        <source>on a volume where others&apos; changes are not noticed; the window looks when it becomes active</source>
        <translation>所在卷无法感知他人的更改；窗口激活时会重新查看</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>监视中</translation>
    </message>
    <message>
        <source>lies in %1, which is watched too; each font counts once</source>
        <translation>位于同样受监视的 %1 中；每款字体只计一次</translation>
    </message>
    <message>
        <source>books and disk agree: %1 copied, %2 registered</source>
        <translation>启用记录与磁盘一致：已复制 %1，已注册 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</source>
        <translation>
            <numerusform>%n 个字体文件在字体文件夹之外原位注册：沙盒中的程序（如来自 Flatpak 或 Snap 的程序）看不到未复制的文件</numerusform>
        </translation>
    </message>
    <message>
        <source>--collection takes no empty name</source>
        <translation>--collection 的名称不能为空</translation>
    </message>
    <message>
        <source>%1; the file of that name is ./%2</source>
        <translation>%1；若指同名文件，请写 ./%2</translation>
    </message>
    <message>
        <source>this machine has no family %1</source>
        <translation>本机没有字体家族%1</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>this is a folder; name the font files in it</source>
        <translation>这是文件夹；请指定其中的字体文件</translation>
    </message>
    <message>
        <source>it holds no font that can be read</source>
        <translation>不含可读取的字体</translation>
    </message>
    <message>
        <source>standard input names no family</source>
        <translation>标准输入未指定字体家族</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3</source>
        <translation>%1 需为 %2 到 %3 之间的整数</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3</source>
        <translation>%1 需为 %2 到 %3 之间的数字</translation>
    </message>
    <message>
        <source>%1 takes UTF-8 text</source>
        <translation>%1 需为 UTF-8 文本</translation>
    </message>
    <message>
        <source>Lists the collections, one line each: the name, a tab, the number of families; or the families of one, in their order. Changes are seen at once by a window that is open.</source>
        <translation>列出收藏集，每行一个：名称、制表符、字体家族数；或按顺序列出某个收藏集的字体家族。已打开的窗口会立即反映更改。</translation>
    </message>
    <message>
        <source>puts families into a collection, at its end</source>
        <translation>将字体家族加入收藏集末尾</translation>
    </message>
    <message>
        <source>takes families out of it</source>
        <translation>从中移除字体家族</translation>
    </message>
    <message>
        <source>makes these families its members, in this order, and no others</source>
        <translation>使其成员恰为这些字体家族，并按此顺序排列</translation>
    </message>
    <message>
        <source>COLLECTION is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a collection; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>COLLECTION 是其 ID（用 --json 查看）或名称；名称不分大小写，除非因此匹配多个。FAMILY 是本机或收藏集中字体家族的名称；单独的 - 从标准输入读取名称，每行一个。命令要么全部执行，要么完全不执行。</translation>
    </message>
    <message>
        <source>JSON instead of lines</source>
        <translation>以 JSON 代替各行</translation>
    </message>
    <message>
        <source>cannot write the output: %1</source>
        <translation>无法写入输出：%1</translation>
    </message>
    <message>
        <source>%1; see %2</source>
        <translation>%1；参见 %2</translation>
    </message>
    <message>
        <source>Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder go to the Trash; your original files are not touched. Where Lorva does not know the original, the file stays unless --to says where it is to go. One line for each file: &quot;withdrawn&quot;, &quot;trashed&quot; or &quot;moved&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too.</source>
        <translation>对所有程序停用字体。注册会被撤销，字体文件夹中的副本会移到回收站；原始文件不受影响。如果 Lorva 不知道原始文件的位置，文件会保留原处，除非用 --to 指定去处。每个文件一行：“withdrawn”“trashed”或“moved”；制表符；文件。“also”、制表符、字体家族：表示这些文件中也有该字体家族的字体。</translation>
    </message>
    <message>
        <source>move the copies there instead, under a free name; made if it is missing</source>
        <translation>改将副本移到该处，重名时另取名称；不存在则创建</translation>
    </message>
    <message>
        <source>--to needs the name of a folder</source>
        <translation>--to 需要文件夹名称</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install it, so the original is not known; --to DIR moves it</source>
        <translation>不是由 Lorva 安装的，原始文件位置未知；可用 --to DIR 移动</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>not there yet; the first change makes it</source>
        <translation>尚不存在；首次更改时创建</translation>
    </message>
    <message>
        <source>%1, preferences: %2</source>
        <translation>%1，偏好设置：%2</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>changes can be written</source>
        <translation>更改可以写入</translation>
    </message>
    <message>
        <source>changes cannot be written: %1</source>
        <translation>更改无法写入：%1</translation>
    </message>
    <message>
        <source>damaged preferences that were moved aside</source>
        <translation>已移到一旁的损坏偏好设置</translation>
    </message>
    <message>
        <source>%1, kept because it could not be read when it was replaced</source>
        <translation>%1，被替换时无法读取，因此予以保留</translation>
    </message>
    <message>
        <source>%1, unknown to this version, which leaves it alone</source>
        <translation>%1，此版本无法识别，不作改动</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a file, and what is wrong with it</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, cannot be read: %2; it counts as absent, and is kept when it is replaced</source>
        <translation>%1，无法读取：%2；视为不存在，被替换时会予以保留</translation>
    </message>
    <message>
        <source>not there yet</source>
        <translation>尚不存在</translation>
    </message>
    <message>
        <source>of no use, and replaced by the next scan: %1</source>
        <translation>无法使用，下次扫描时替换：%1</translation>
    </message>
    <message>
        <source>of no use, and replaced when the window has next read the fonts: %1</source>
        <translation>无法使用，窗口下次读取字体后替换：%1</translation>
    </message>
    <message>
        <source>all families that it names are in the last catalog: %1</source>
        <translation>其中提到的字体家族均在上次的目录中：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 families that it names are not in the last catalog</source>
        <translation>
            <numerusform>其中提到的 %1 个字体家族中，有 %n 个不在上次的目录中</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how preferences, caches, active fonts and watched folders fare, and changes nothing. One line for each finding: &quot;ok&quot;, &quot;note&quot; or &quot;wrong&quot;, a tab, the file or preference, a tab, what there is to say. A note is worth knowing, but nothing is out of order: preferences of another version, damaged ones that were kept beside new ones, a cache of no use that will be written anew, books that the next activation brings into line with the disk.</source>
        <translation>说明偏好设置、缓存、已启用的字体和监视的文件夹的状况，不作任何更改。每项结果一行：“ok”“note”或“wrong”、制表符、文件或偏好设置、制表符、说明。“note”值得了解，但并无问题：其他版本的偏好设置、与新偏好设置一同保留的损坏偏好设置、将重新写入的失效缓存、下次启用时会与磁盘同步的启用记录。</translation>
    </message>
    <message>
        <source>one JSON object instead</source>
        <translation>改为一个 JSON 对象</translation>
    </message>
    <message>
        <source>Exit status: 0 all is well, 1 something is wrong.</source>
        <translation>退出状态：0 一切正常，1 存在问题。</translation>
    </message>
    <message>
        <source>doctor takes no words</source>
        <translation>doctor 不接受参数</translation>
    </message>
    <message>
        <source>collection %1 deleted</source>
        <translation>收藏集%1：已删除</translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>收藏集%1：已新建，含 %n 个字体家族</numerusform>
        </translation>
    </message>
    <message>
        <source>collection %1: %2</source>
        <translation>收藏集%1：%2</translation>
    </message>
    <message>
        <source>style %1 deleted</source>
        <translation>风格%1：已删除</translation>
    </message>
    <message numerus="yes">
        <source>style %1 created with %n families</source>
        <translation>
            <numerusform>风格%1：已新建，含 %n 个字体家族</numerusform>
        </translation>
    </message>
    <message>
        <source>style %1: %2</source>
        <translation>风格%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%n families joined</source>
        <translation>
            <numerusform>加入 %n 个字体家族</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families left</source>
        <translation>
            <numerusform>移出 %n 个字体家族</numerusform>
        </translation>
    </message>
    <message>
        <source>renamed from %1</source>
        <translation>原名%1</translation>
    </message>
    <message>
        <source>family %1: of the foundry that its fonts name</source>
        <translation>字体家族%1：属于其字体标明的字体厂商</translation>
    </message>
    <message>
        <source>family %1: of no foundry</source>
        <translation>字体家族%1：不属于任何字体厂商</translation>
    </message>
    <message>
        <source>family %1: of the foundry %2</source>
        <translation>字体家族%1：属于字体厂商%2</translation>
    </message>
    <message>
        <source>foundry %1: called %2</source>
        <translation>字体厂商%1：改称%2</translation>
    </message>
    <message>
        <source>foundry %1: called by its own name</source>
        <translation>字体厂商%1：恢复原名</translation>
    </message>
    <message>
        <source>foundry %1: hidden</source>
        <translation>字体厂商%1：已隐藏</translation>
    </message>
    <message>
        <source>foundry %1: shown again</source>
        <translation>字体厂商%1：已重新显示</translation>
    </message>
    <message>
        <source>display settings of all fonts: taken in</source>
        <translation>所有字体的显示设置：已导入</translation>
    </message>
    <message>
        <source>display settings of collection %1: taken in</source>
        <translation>收藏集%1的显示设置：已导入</translation>
    </message>
    <message>
        <source>Writes collections, styles, what you said about foundries, and display settings as one JSON document, for another machine or for version control. Equal organisations give equal bytes.</source>
        <translation>将收藏集、风格、您对字体厂商的设定以及显示设置写成一个 JSON 文档，供其他电脑使用或纳入版本控制。整理数据相同，字节也相同。</translation>
    </message>
    <message>
        <source>the file to write, whole or not at all; standard output if not given</source>
        <translation>要写入的文件，要么完整写入，要么不写；未指定则为标准输出</translation>
    </message>
    <message>
        <source>export takes a file as -o FILE</source>
        <translation>export 需以 -o FILE 指定文件</translation>
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
        <translation>%1：不含可读取的字体</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>字体家族</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript 名称</translation>
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
        <translation>制造商</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>设计师</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
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
        <translation>%1（特征值 %2）</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>%1 (slant %2)</source>
        <translation>%1（倾斜 %2）</translation>
    </message>
    <message>
        <source>default %1</source>
        <extracomment>the value of an axis of a variable font</extracomment>
        <translation>默认 %1</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>轴</translation>
    </message>
    <message>
        <source>linked with %1</source>
        <translation>关联 %1</translation>
    </message>
    <message>
        <source>left out of names</source>
        <translation>名称中省略</translation>
    </message>
    <message>
        <source>Axis value</source>
        <translation>轴值</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>实例</translation>
    </message>
    <message>
        <source>Name %1</source>
        <translation>名称 %1</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>ascender %1, descender %2, line gap %3</source>
        <translation>升部 %1，降部 %2，行间距 %3</translation>
    </message>
    <message>
        <source>position %1, thickness %2</source>
        <translation>位置 %1，粗细 %2</translation>
    </message>
    <message>
        <source>size %1 × %2, offset %3, %4</source>
        <translation>大小 %1 × %2，偏移 %3, %4</translation>
    </message>
    <message>
        <source>Units per em</source>
        <translation>每 em 单位数</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>capitals %1, x %2</source>
        <translation>大写 %1，x %2</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>OS/2 typo, used</source>
        <translation>OS/2 typo，采用</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <translation>删除线</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>下标</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>上标</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>边界</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>修订</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>供应商</translation>
    </message>
    <message>
        <source>Embedding</source>
        <translation>嵌入</translation>
    </message>
    <message>
        <source>Weight class</source>
        <translation>字重等级</translation>
    </message>
    <message>
        <source>Width class</source>
        <translation>字宽等级</translation>
    </message>
    <message>
        <source>Average width</source>
        <translation>平均宽度</translation>
    </message>
    <message>
        <source>Widest advance</source>
        <translation>最大步进宽度</translation>
    </message>
    <message>
        <source>Italic angle</source>
        <translation>斜体角度</translation>
    </message>
    <message>
        <source>Monospaced</source>
        <translation>等宽</translation>
    </message>
    <message>
        <source>Smallest pixels</source>
        <translation>最小像素</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more ranges</source>
        <translation>
            <numerusform>另外 %1 个范围</numerusform>
        </translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>a feature of a font that is switched on unless somebody switches it off</extracomment>
        <translation>开启</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>at the end of a list of colours</extracomment>
        <translation>另外 %1 种</translation>
    </message>
    <message>
        <source>for light backgrounds</source>
        <translation>用于浅色背景</translation>
    </message>
    <message>
        <source>for dark backgrounds</source>
        <translation>用于深色背景</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Colour tables</source>
        <translation>颜色表</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Tables, bytes</source>
        <translation>表（字节）</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>字形</translation>
    </message>
    <message>
        <source>Face %1</source>
        <extracomment>one of the fonts in a file; %1: its number</extracomment>
        <translation>字体 %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>字形数</translation>
    </message>
    <message>
        <source>Family %1</source>
        <translation>字体家族 %1</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Primary script</source>
        <translation>主要文字</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>其他名称</translation>
    </message>
    <message>
        <source>several families are called %1: %2</source>
        <translation>有多个字体家族名为%1：%2</translation>
    </message>
    <message>
        <source>there is no family %1</source>
        <translation>没有字体家族%1</translation>
    </message>
    <message>
        <source>Lists the watched folders, whose fonts belong to your library: the folder, a tab, the number of font files in it, or &quot;not there&quot;. Changes are seen at once by a window that is open; no file is touched. A command is done whole or not at all.</source>
        <translation>列出监视的文件夹，其中的字体属于您的字体库：文件夹、制表符、其中的字体文件数或“not there”。已打开的窗口会立即反映更改；不会改动任何文件。命令要么全部执行，要么完全不执行。</translation>
    </message>
    <message>
        <source>watches folders; one that is watched already stays as it is</source>
        <translation>监视文件夹；已监视的保持不变</translation>
    </message>
    <message>
        <source>ends that; what was activated from there stays active</source>
        <translation>停止监视；已从中启用的字体仍保持启用</translation>
    </message>
    <message>
        <source>ID is what --json shows.</source>
        <translation>ID 可用 --json 查看。</translation>
    </message>
    <message>
        <source>one JSON array of folders instead of lines; add and remove show what they added or removed</source>
        <translation>以一个文件夹 JSON 数组代替各行；add 和 remove 显示添加或移除的内容</translation>
    </message>
    <message>
        <source>list takes fewer words</source>
        <translation>list 的参数过多</translation>
    </message>
    <message>
        <source>add takes no empty name</source>
        <translation>add 的名称不能为空</translation>
    </message>
    <message>
        <source>the path %1 is no UTF-8 text</source>
        <translation>路径 %1 不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>remove takes no empty name</source>
        <translation>remove 的名称不能为空</translation>
    </message>
    <message>
        <source>there is no watched folder %1</source>
        <translation>没有监视的文件夹%1</translation>
    </message>
    <message>
        <source>unknown verb %1</source>
        <translation>未知动作 %1</translation>
    </message>
    <message>
        <source>%1 needs a folder</source>
        <translation>%1 需要文件夹</translation>
    </message>
    <message>
        <source>Lists the foundries of this machine&apos;s fonts with two families at least, corrected by what you said, one line each: the name, a tab, the number of families; or the families of one. Changes are seen at once by a window that is open.</source>
        <translation>列出本机字体中至少有两个字体家族的字体厂商，并按您的设定更正，每行一个：名称、制表符、字体家族数；或列出某个字体厂商的字体家族。已打开的窗口会立即反映更改。</translation>
    </message>
    <message>
        <source>shows the foundry under another name, or under its own with --original</source>
        <translation>以其他名称显示该字体厂商，或用 --original 恢复原名</translation>
    </message>
    <message>
        <source>hides it, its families stay in the library; list --hidden shows such ones</source>
        <translation>将其隐藏，其字体家族仍在字体库中；list --hidden 列出已隐藏的</translation>
    </message>
    <message>
        <source>brings it back</source>
        <translation>重新显示</translation>
    </message>
    <message>
        <source>moves families to it, whatever their fonts say</source>
        <translation>将字体家族移入其中，不论其字体如何标明</translation>
    </message>
    <message>
        <source>takes families out of it; they are of no foundry then</source>
        <translation>从中移除字体家族；它们此后不属于任何字体厂商</translation>
    </message>
    <message>
        <source>makes these families its own; others that their fonts count to it are of no foundry then</source>
        <translation>使其恰含这些字体家族；按字体标明属于它的其他字体家族此后不属于任何字体厂商</translation>
    </message>
    <message>
        <source>lets the fonts of families say it again</source>
        <translation>恢复以字体家族中字体标明的为准</translation>
    </message>
    <message>
        <source>FOUNDRY is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of one that you sorted; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>FOUNDRY 是其 ID（用 --json 查看）或名称；名称不分大小写，除非因此匹配多个。FAMILY 是本机或您整理过的字体家族的名称；单独的 - 从标准输入读取名称，每行一个。命令要么全部执行，要么完全不执行。</translation>
    </message>
    <message>
        <source>a foundry comes from the fonts and cannot be created; rename one, or add families to one</source>
        <translation>字体厂商来自字体，无法新建；可重命名一个，或将字体家族加入其中</translation>
    </message>
    <message>
        <source>rename needs either a new name or --original</source>
        <translation>rename 需要新名称或 --original，二者选一</translation>
    </message>
    <message>
        <source>no fonts of this machine are of the foundry %1</source>
        <translation>本机没有属于字体厂商%1的字体</translation>
    </message>
    <message>
        <source>there is no collection %1</source>
        <translation>没有收藏集%1</translation>
    </message>
    <message>
        <source>there is more than one collection %1; their ids: %2</source>
        <translation>有多个收藏集%1；其 ID：%2</translation>
    </message>
    <message>
        <source>there is a collection %1 already</source>
        <translation>已有收藏集%1</translation>
    </message>
    <message>
        <source>%1 is not in collection %2</source>
        <translation>%1不在收藏集%2中</translation>
    </message>
    <message>
        <source>there is no style %1</source>
        <translation>没有风格%1</translation>
    </message>
    <message>
        <source>there is more than one style %1; their ids: %2</source>
        <translation>有多个风格%1；其 ID：%2</translation>
    </message>
    <message>
        <source>there is a style %1 already</source>
        <translation>已有风格%1</translation>
    </message>
    <message>
        <source>%1 is not in style %2</source>
        <translation>%1不在风格%2中</translation>
    </message>
    <message>
        <source>there is no foundry %1</source>
        <translation>没有字体厂商%1</translation>
    </message>
    <message>
        <source>there is more than one foundry %1; their ids: %2</source>
        <translation>有多个字体厂商%1；其 ID：%2</translation>
    </message>
    <message>
        <source>there is a foundry %1 already</source>
        <translation>已有字体厂商%1</translation>
    </message>
    <message>
        <source>%1 is not in foundry %2</source>
        <translation>%1不在字体厂商%2中</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too, beside those of the watched folders</source>
        <translation>除监视的文件夹外，同时纳入 DIR 下的字体</translation>
    </message>
    <message>
        <source>take names of families that this machine lacks, for when their fonts come</source>
        <translation>接受本机没有的字体家族名称，待日后有其字体时使用</translation>
    </message>
    <message>
        <source>Tells what was switched on and off here, in the window and by lorvactl, the newest first. One line for each time: when, a tab, &quot;copied&quot;, &quot;registered&quot;, &quot;deactivated&quot;, &quot;moved&quot; or &quot;restored&quot;, a tab, the families; after &quot;moved&quot; a tab, and where to. Then a line for each file, which begins with a tab: &quot;done&quot;, &quot;skipped&quot; (its name was taken), &quot;failed&quot; or &quot;left&quot; (it was stopped before), a tab, the file; after &quot;failed&quot; a tab, and why.</source>
        <translation>说明在此处（窗口中和通过 lorvactl）启用和停用过什么，最新的在前。每次一行：时间、制表符、“copied”“registered”“deactivated”“moved”或“restored”、制表符、字体家族；“moved”之后再接制表符和去处。随后每个文件一行，以制表符开头：“done”“skipped”（名称已被占用）、“failed”或“left”（在此之前已中止）、制表符、文件；“failed”之后再接制表符和原因。</translation>
    </message>
    <message>
        <source>only the newest N times</source>
        <translation>仅最近 N 次</translation>
    </message>
    <message>
        <source>one JSON array instead of lines</source>
        <translation>以一个 JSON 数组代替各行</translation>
    </message>
    <message>
        <source>a table for spreadsheets instead, one row for each file</source>
        <translation>改为供电子表格使用的表，每个文件一行</translation>
    </message>
    <message>
        <source>history takes --json or --csv, not both</source>
        <translation>history 只能使用 --json 或 --csv 之一</translation>
    </message>
    <message>
        <source>history takes no further words</source>
        <translation>history 不接受更多参数</translation>
    </message>
    <message>
        <source>Takes in what lorvactl export wrote; a lone - reads standard input. Collections and styles of the same id or name take the file&apos;s families in, others come anew, and what the file says about foundries and display settings wins; nothing is taken away. Families that this machine lacks stay members, for when their fonts come. Tells what changed, one line each. Done whole or not at all.</source>
        <translation>导入 lorvactl export 写出的内容；单独的 - 读取标准输入。ID 或名称相同的收藏集和风格会纳入文件中的字体家族，其余的则新建；字体厂商和显示设置以文件为准；不会移除任何内容。本机没有的字体家族仍为成员，待日后有其字体时使用。逐行说明更改的内容。要么全部执行，要么完全不执行。</translation>
    </message>
    <message>
        <source>make collections, styles and foundries what the file says and nothing else; what was there is first written to a file beside the preferences; the window no longer sorts families into styles by itself</source>
        <translation>使收藏集、风格和字体厂商与文件完全一致；原有内容会先写入偏好设置旁的文件；窗口不再自动将字体家族归入风格</translation>
    </message>
    <message>
        <source>only tell what would change</source>
        <translation>仅说明将更改的内容</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>preference %1: made anew</source>
        <translation>偏好设置 %1：已重新建立</translation>
    </message>
    <message>
        <source>%1 lacks what could not be read: %2</source>
        <translation>%1 缺少无法读取的内容：%2</translation>
    </message>
    <message>
        <source>%1; what stands there would be kept</source>
        <translation>%1；其中原有的内容将予保留</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>没有需要更改的内容</translation>
    </message>
    <message>
        <source>what was there: %1</source>
        <translation>原有内容：%1</translation>
    </message>
    <message>
        <source>import takes one file</source>
        <translation>import 需要一个文件</translation>
    </message>
    <message>
        <source>Shows what there is to know of every face of a font file: names in every language, format, metrics, embedding rights, characters, variation axes with their named values and instances, features, layout languages, colours and tables; and which writing scripts its families serve.</source>
        <translation>显示字体文件中每款字体的全部信息：各语言的名称、格式、度量、嵌入权限、字符、可变轴及其命名值和实例、特性、布局语言、颜色和表；以及其字体家族支持的文字。</translation>
    </message>
    <message>
        <source>list every glyph with its name and its character, too</source>
        <translation>同时列出每个字形的名称和字符</translation>
    </message>
    <message>
        <source>info takes one font file</source>
        <translation>info 需要一个字体文件</translation>
    </message>
    <message>
        <source>standard input is not UTF-8 text</source>
        <translation>标准输入不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>无法读取标准输入：%1</translation>
    </message>
    <message>
        <source>standard input has more than %1 bytes</source>
        <translation>标准输入超过 %1 字节</translation>
    </message>
    <message>
        <source>the name of a family must be UTF-8 text</source>
        <translation>字体家族的名称必须是 UTF-8 文本</translation>
    </message>
    <message>
        <source>the name of a family cannot be empty</source>
        <translation>字体家族的名称不能为空</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>没有文件夹 %1</translation>
    </message>
    <message>
        <source>--folder needs the name of a folder</source>
        <translation>--folder 需要文件夹名称</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
    <message>
        <source>the watched folders cannot be read (%1); they are left out</source>
        <translation>无法读取监视的文件夹（%1）；已将其略去</translation>
    </message>
    <message>
        <source>Lists the font families of this machine, one line each: the name, a tab, the styles. Characters that would break a line are written as escapes (\n, \u{202e}).</source>
        <translation>列出本机的字体家族，每行一个：名称、制表符、样式。会打断行的字符写为转义（\n、\\u{202e}）。</translation>
    </message>
    <message>
        <source>one JSON array of families instead</source>
        <translation>改为一个字体家族 JSON 数组</translation>
    </message>
    <message>
        <source>only families that can set latin, japanese, korean, simplifiedChinese or traditionalChinese</source>
        <translation>仅限可排 latin、japanese、korean、simplifiedChinese 或 traditionalChinese 的字体家族</translation>
    </message>
    <message>
        <source>--script takes %1</source>
        <translation>--script 需为 %1</translation>
    </message>
    <message>
        <source>list takes folders as --folder DIR</source>
        <translation>list 需以 --folder DIR 指定文件夹</translation>
    </message>
    <message>
        <source>list the font families of this machine</source>
        <translation>列出本机的字体家族</translation>
    </message>
    <message>
        <source>list those that a search finds</source>
        <translation>列出搜索到的字体家族</translation>
    </message>
    <message>
        <source>read the fonts that changed, and tell what that took</source>
        <translation>读取有更改的字体，并说明耗时</translation>
    </message>
    <message>
        <source>show what a font file says about its faces</source>
        <translation>显示字体文件中各款字体的信息</translation>
    </message>
    <message>
        <source>draw text in a font: PNG, SVG or PDF</source>
        <translation>用字体绘制文本：PNG、SVG 或 PDF</translation>
    </message>
    <message>
        <source>list, make and change collections</source>
        <translation>列出、新建和更改收藏集</translation>
    </message>
    <message>
        <source>list, make and change styles</source>
        <translation>列出、新建和更改风格</translation>
    </message>
    <message>
        <source>list and correct the foundries</source>
        <translation>列出和更正字体厂商</translation>
    </message>
    <message>
        <source>write all of that to a file</source>
        <translation>将以上全部写入文件</translation>
    </message>
    <message>
        <source>take it in from such a file</source>
        <translation>从此类文件导入</translation>
    </message>
    <message>
        <source>make fonts available to every program</source>
        <translation>使字体可供所有程序使用</translation>
    </message>
    <message>
        <source>withdraw them again</source>
        <translation>将其停用</translation>
    </message>
    <message>
        <source>tell what is active, and how</source>
        <translation>说明已启用的字体及其方式</translation>
    </message>
    <message>
        <source>list, add and remove watched folders</source>
        <translation>列出、添加和移除监视的文件夹</translation>
    </message>
    <message>
        <source>tell what was switched on and off, and when</source>
        <translation>说明何时启用和停用过什么</translation>
    </message>
    <message>
        <source>tell how preferences, caches and activation fare</source>
        <translation>说明偏好设置、缓存和启用的状况</translation>
    </message>
    <message>
        <source>ask whether there is a newer release of Lorva</source>
        <translation>查询是否有更新的 Lorva 版本</translation>
    </message>
    <message>
        <source>show this help; also after a command</source>
        <translation>显示此帮助；也可用于命令之后</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command was not understood.</source>
        <translation>退出状态：0 已完成，1 失败，2 无法识别命令。</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>缺少命令</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>未知命令 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n 个条目</numerusform>
        </translation>
    </message>
    <message>
        <source>readable</source>
        <translation>可读取</translation>
    </message>
    <message>
        <source>neither copy nor register</source>
        <translation>既不是 copy 也不是 register</translation>
    </message>
    <message>
        <source>not a whole value of kind %1</source>
        <translation>不是完整的 %1 类型值</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>数据库已损坏</translation>
    </message>
    <message>
        <source>no folder for a copy: %1</source>
        <translation>没有可存放副本的文件夹：%1</translation>
    </message>
    <message>
        <source>process %1 keeps it locked</source>
        <translation>被进程 %1 锁定</translation>
    </message>
    <message>
        <source>%1 is no regular file</source>
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>no space is left in %1</source>
        <translation>%1 中没有剩余空间</translation>
    </message>
    <message>
        <source>Reads the fonts of this machine that have changed since the last scan, writes down what it learned for the next one, and tells what it did and how long each step took.</source>
        <translation>读取本机自上次扫描以来有更改的字体，记下结果供下次使用，并说明所做的操作和各步骤的耗时。</translation>
    </message>
    <message>
        <source>Read the cache</source>
        <translation>读取缓存</translation>
    </message>
    <message>
        <source>Find files</source>
        <translation>查找文件</translation>
    </message>
    <message>
        <source>Read faces</source>
        <translation>读取字体</translation>
    </message>
    <message>
        <source>Identify families</source>
        <translation>识别字体家族</translation>
    </message>
    <message>
        <source>Group families</source>
        <translation>归并字体家族</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>a time in milliseconds</extracomment>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Fonts: %1 found, %2 read, %3 unchanged</source>
        <translation>字体：找到 %1，读取 %2，未变 %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>%1 个样式</numerusform>
        </translation>
    </message>
    <message>
        <source>Families: %1 with %2, %3 newly identified</source>
        <translation>字体家族：%1，含 %2，新识别 %3</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>scan takes folders as --folder DIR</source>
        <translation>scan 需以 --folder DIR 指定文件夹</translation>
    </message>
    <message>
        <source>Lists the font families that the window&apos;s search field finds: those with TEXT in their name, in a name in another language or in their manufacturer&apos;s name, whatever its case, accents and width, Hiragana for Katakana. One line each: the name, a tab, the styles.</source>
        <translation>列出窗口搜索栏能找到的字体家族：名称、其他语言的名称或制造商名称中含有 TEXT，不分大小写、重音和全半角，平假名也匹配片假名。每行一个：名称、制表符、样式。</translation>
    </message>
    <message>
        <source>search takes one text</source>
        <translation>search 需要一段文本</translation>
    </message>
    <message>
        <source>the text needs %1 pixels of height; give a --height up to %2</source>
        <translation>文本需要 %1 像素的高度；请用 --height 指定，最大 %2</translation>
    </message>
    <message>
        <source>the picture is too small for all of the text</source>
        <translation>图片太小，容纳不下全部文本</translation>
    </message>
    <message>
        <source>Draws text in a face of a font file. In an SVG or PDF the letters are outlines; no font is embedded.</source>
        <translation>用字体文件中的一款字体绘制文本。SVG 或 PDF 中的字母为轮廓；不嵌入字体。</translation>
    </message>
    <message>
        <source>what to write, a .png, .svg or .pdf by its name; never a font file</source>
        <translation>要写入的文件，按名称为 .png、.svg 或 .pdf；绝不会是字体文件</translation>
    </message>
    <message>
        <source>what to draw; a pangram if not given</source>
        <translation>要绘制的文本；未指定则为全字母句</translation>
    </message>
    <message>
        <source>which face of a collection, from 0</source>
        <translation>字体集中的第几款字体，从 0 起</translation>
    </message>
    <message>
        <source>a named instance of a variable face</source>
        <translation>可变字体的命名实例</translation>
    </message>
    <message>
        <source>values of axes: wght=650,wdth=80</source>
        <translation>轴的值：wght=650,wdth=80</translation>
    </message>
    <message>
        <source>OpenType features: smcp,onum=0,ss01=1,-liga,+dlig</source>
        <translation>OpenType 特性：smcp,onum=0,ss01=1,-liga,+dlig</translation>
    </message>
    <message>
        <source>which palette of a colour font, from 0</source>
        <translation>彩色字体的第几个调色板，从 0 起</translation>
    </message>
    <message>
        <source>for forms of that language: ja, zh-Hant, sr (BCP 47)</source>
        <translation>采用该语言的字形：ja、zh-Hant、sr (BCP 47)</translation>
    </message>
    <message>
        <source>of the text; auto, by its first letter, if not given</source>
        <translation>文本的方向；未指定则为 auto，即由首字母决定</translation>
    </message>
    <message>
        <source>pixels after each letter, -1000 to 1000</source>
        <translation>每个字母后的像素数，-1000 到 1000</translation>
    </message>
    <message>
        <source>pixels per em, 1 to 4096; 48 if not given</source>
        <translation>每 em 像素数，1 到 4096；未指定则为 48</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; the text wraps. As wide as the text if not given</source>
        <translation>像素，1 到 16384；文本会换行。未指定则与文本同宽</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; as high as the text if not given</source>
        <translation>像素，1 到 16384；未指定则与文本同高</translation>
    </message>
    <message>
        <source>of the text; black if not given</source>
        <translation>文本的颜色；未指定则为黑色</translation>
    </message>
    <message>
        <source>white if not given</source>
        <translation>未指定则为白色</translation>
    </message>
    <message>
        <source>specimen takes one font file</source>
        <translation>specimen 需要一个字体文件</translation>
    </message>
    <message>
        <source>specimen needs a picture to write: -o PICTURE</source>
        <translation>specimen 需要指定要写入的图片：-o PICTURE</translation>
    </message>
    <message>
        <source>%1: the face has no instance %2</source>
        <translation>%1：该字体没有实例%2</translation>
    </message>
    <message>
        <source>%1: the face has no axes</source>
        <translation>%1：该字体没有轴</translation>
    </message>
    <message>
        <source>%1: the face has no axis %2, only %3</source>
        <translation>%1：该字体没有轴%2，只有 %3</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3: drawn with %4 instead of %5</source>
        <translation>%1 的范围为 %2 到 %3：以 %4 代替 %5 绘制</translation>
    </message>
    <message>
        <source>the face has no feature %1</source>
        <translation>该字体没有特性%1</translation>
    </message>
    <message>
        <source>%1: the face has no palettes</source>
        <translation>%1：该字体没有调色板</translation>
    </message>
    <message>
        <source>%1: the face has no palette %2, only 0 to %3</source>
        <translation>%1：该字体没有调色板 %2，只有 0 到 %3</translation>
    </message>
    <message>
        <source>%1 takes a list of features as smcp,onum=0,-liga</source>
        <translation>%1 需为特性列表，如 smcp,onum=0,-liga</translation>
    </message>
    <message>
        <source>%1 takes a list of axes as wght=650,wdth=80</source>
        <translation>%1 需为轴列表，如 wght=650,wdth=80</translation>
    </message>
    <message>
        <source>%1 takes a language as ja, zh-Hant or sr-Latn-RS (BCP 47)</source>
        <translation>%1 需为语言，如 ja、zh-Hant 或 sr-Latn-RS (BCP 47)</translation>
    </message>
    <message>
        <source>%1 takes ltr, rtl or auto</source>
        <translation>%1 需为 ltr、rtl 或 auto</translation>
    </message>
    <message>
        <source>%1 takes a colour as #RRGGBB</source>
        <translation>%1 需为颜色，如 #RRGGBB</translation>
    </message>
    <message>
        <source>Tells what is available to every program, one line for each family: the name, a tab, &quot;active (copied)&quot;, &quot;active (registered)&quot;, &quot;active (system)&quot;, &quot;partly active&quot; or &quot;inactive&quot;. Of families that are named it tells of the files too, each on a line that begins with a tab: what it is (copied, registered, inactive, system), a tab, the file; of copies then a tab, and where they came from; of originals that were copied a tab, and what is active for them. A word with a slash is a file; its families are then judged by that file alone.</source>
        <translation>说明哪些字体可供所有程序使用，每个字体家族一行：名称、制表符、“active (copied)”“active (registered)”“active (system)”“partly active”或“inactive”。对于指定的字体家族，还会说明其文件，每个一行，以制表符开头：状态（copied、registered、inactive、system）、制表符、文件；副本之后再接制表符和来源；已复制的原始文件之后再接制表符和代其启用的文件。含斜线的词是文件；其字体家族仅按该文件判断。</translation>
    </message>
    <message>
        <source>one JSON array of families instead, always with their files</source>
        <translation>改为一个字体家族 JSON 数组，始终含其文件</translation>
    </message>
    <message>
        <source>Lists the styles, one line each: the name, a tab, the number of families; or the families of one, by name. Changes are seen at once by a window that is open. The window sorts families into styles by their names once, at its first start.</source>
        <translation>列出风格，每行一个：名称、制表符、字体家族数；或按名称列出某个风格的字体家族。已打开的窗口会立即反映更改。窗口在首次启动时，会按名称将字体家族归入风格一次。</translation>
    </message>
    <message>
        <source>a style of your own</source>
        <translation>您自己的风格</translation>
    </message>
    <message>
        <source>only a style of your own, not one of those that every library has</source>
        <translation>仅限您自己的风格，每个字体库固有的风格除外</translation>
    </message>
    <message>
        <source>likewise; its families are in no style then</source>
        <translation>同上；其字体家族此后不属于任何风格</translation>
    </message>
    <message>
        <source>moves families there: a family is in one style at most</source>
        <translation>将字体家族移入其中：每个字体家族至多属于一个风格</translation>
    </message>
    <message>
        <source>takes families out of it; they are in no style then</source>
        <translation>从中移除字体家族；它们此后不属于任何风格</translation>
    </message>
    <message>
        <source>makes these families its members; those that leave are in no style then</source>
        <translation>使其成员为这些字体家族；移出的此后不属于任何风格</translation>
    </message>
    <message>
        <source>STYLE is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a style; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>STYLE 是其 ID（用 --json 查看）或名称；名称不分大小写，除非因此匹配多个。FAMILY 是本机或风格中字体家族的名称；单独的 - 从标准输入读取名称，每行一个。命令要么全部执行，要么完全不执行。</translation>
    </message>
    <message>
        <source>every library has the style %1, which cannot be renamed or deleted</source>
        <translation>风格%1为每个字体库所固有，不能重命名或删除</translation>
    </message>
    <message>
        <source>%1 needs a family, a file or --collection</source>
        <translation>%1 需要字体家族、文件或 --collection</translation>
    </message>
    <message>
        <source>the preference %1 cannot be read (%2)</source>
        <translation>偏好设置 %1 无法读取（%2）</translation>
    </message>
    <message>
        <source>%1; what stood there is kept as %2</source>
        <translation>%1；其中原有的内容已保留为 %2</translation>
    </message>
    <message>
        <source>Asks the makers of Lorva over the network whether there is a newer release. Nothing is downloaded or installed. One line tells that this is the newest; of a newer one the first line tells version, day and page, and the second, if there is one, what is new. The exit status is 0 in both cases, and 1 when neither could be found out, as in a build whose updates come with the system&apos;s.</source>
        <translation>通过网络向 Lorva 的制作者查询是否有更新的版本。不会下载或安装任何内容。若当前版本为最新，以一行说明；若有更新的版本，第一行给出版本、日期和页面，第二行（如有）说明更新内容。两种情况下退出状态均为 0；若无法查明（例如更新随系统提供的构建），则为 1。</translation>
    </message>
    <message>
        <source>one JSON object instead: isNewer, runningVersion, version, date, page, summary</source>
        <translation>改为一个 JSON 对象：isNewer, runningVersion, version, date, page, summary</translation>
    </message>
    <message>
        <source>ask there instead, https or on this computer; to try out a feed</source>
        <translation>改向该处查询，须为 https 或本机地址；用于试用发布源</translation>
    </message>
    <message>
        <source>the feed&apos;s Ed25519 key, 32 bytes in Base64, instead of the makers&apos;</source>
        <translation>发布源的 Ed25519 密钥，32 字节的 Base64，代替制作者的密钥</translation>
    </message>
    <message>
        <source>--feed needs an address</source>
        <translation>--feed 需要地址</translation>
    </message>
    <message>
        <source>Lorva %1 is up to date</source>
        <translation>Lorva %1 已是最新版本</translation>
    </message>
    <message>
        <source>Lorva %1 was released on %2; this is %3: %4</source>
        <translation>Lorva %1 已于 %2 发布；当前为 %3：%4</translation>
    </message>
    <message>
        <source>updates takes no further words</source>
        <translation>updates 不接受更多参数</translation>
    </message>
    <message>
        <source>this build does not look for new versions: the system&apos;s software updates bring them</source>
        <translation>此构建不检查新版本：新版本通过系统的软件更新提供</translation>
    </message>
    <message>
        <source>%1; lorvactl doctor tells more</source>
        <translation>%1；详见 lorvactl doctor</translation>
    </message>
    <message>
        <source>%1 and counts as absent</source>
        <translation>%1，视为不存在</translation>
    </message>
    <message>
        <source>%1 could not be read and was moved to %2</source>
        <translation>%1 无法读取，已移到 %2</translation>
    </message>
    <message>
        <source>the preferences could not be read</source>
        <translation>偏好设置无法读取</translation>
    </message>
    <message>
        <source>the preferences could not be written</source>
        <translation>偏好设置无法写入</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <translation>%1 不接受 %2</translation>
    </message>
    <message>
        <source>%1 takes no empty name</source>
        <translation>%1 的名称不能为空</translation>
    </message>
    <message>
        <source>%1 needs more words</source>
        <translation>%1 的参数不足</translation>
    </message>
    <message>
        <source>%1 takes fewer words</source>
        <translation>%1 的参数过多</translation>
    </message>
    <message>
        <source>%1 needs a family, and standard input names none</source>
        <translation>%1 需要字体家族，而标准输入未指定</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>a name within a message, in the quotation marks of the language</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>between the parts of a list</extracomment>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n families</source>
        <translation>
            <numerusform>%n 个字体家族</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>%n 个字体文件</numerusform>
        </translation>
    </message>
    <message>
        <source>draw the picture of a font that file managers show</source>
        <translation>绘制文件管理器中显示的字体图片</translation>
    </message>
    <message>
        <source>tell what a report of a fault needs, and nobody&apos;s names</source>
        <translation>给出问题报告所需的信息，不含任何名称</translation>
    </message>
    <message>
        <source>Tells what a report of a fault needs: versions, the desktop, counts, sizes, times, what the doctor finds, and settings. Nothing in it names a font, a file, a folder, a collection or a person, and no text that was typed is in it. It is in English, whatever the language.</source>
        <translation>给出问题报告所需的信息：版本、桌面、数量、大小、耗时、doctor 的检查结果和设置。其中不含字体、文件、文件夹、收藏集的名称和人名，也不含输入过的文本。无论使用何种语言，内容均为英文。</translation>
    </message>
    <message>
        <source>report takes no words</source>
        <translation>report 不接受参数</translation>
    </message>
    <message>
        <source>%1: has no letters or symbols to show</source>
        <translation>%1：没有可显示的字母或符号</translation>
    </message>
    <message>
        <source>Draws the picture of a font that file managers show: &quot;Aa&quot;, or letters or symbols of the font&apos;s own script, on a square sheet, written as PNG. FONT is a file or its file: address. It is read in a process that can do nothing but read and draw, within bounds of time and memory; for a font that cannot be shown nothing is written.</source>
        <translation>绘制文件管理器中显示的字体图片：在方形底面上绘制 &quot;Aa&quot;，或字体自身文字的字母或符号，写为 PNG。FONT 是文件或其 file: 地址。读取在只能读取和绘制的进程中进行，时间和内存均有上限；若字体无法显示，则不写入任何内容。</translation>
    </message>
    <message>
        <source>pixels each way, 16 to 2048; 256 if not given</source>
        <translation>边长像素，16 到 2048；未指定则为 256</translation>
    </message>
    <message>
        <source>which face of a collection, from 0; the first that can be drawn if not given</source>
        <translation>字体集中的第几款字体，从 0 起；未指定则为第一款可绘制的字体</translation>
    </message>
    <message>
        <source>thumbnail takes a font file and a picture to write</source>
        <translation>thumbnail 需要一个字体文件和一个要写入的图片</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>图片无法编码</translation>
    </message>
    <message>
        <source>Reasons stay in the language of whoever switched the fonts, with --json and --csv, too.</source>
        <translation>原因保留启用或停用字体的人所用的语言，使用 --json 和 --csv 时也一样。</translation>
    </message>
    <message>
        <source>the stored value is of another type</source>
        <translation>存储的值类型不符</translation>
    </message>
</context>
</TS>
