<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_HK" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>產品：%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>展示程式庫功能的小型剪輯器。</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>檔案…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>資料夾…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>從裝置…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>放到播放磁頭處</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>設定入點</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>設定出點</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>清除入點和出點</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>建立代理檔</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>取消建立代理檔</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>使用代理檔</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>指定位置…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>在資料夾中搜尋離線媒體…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>移除所有未使用的項目</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>加入媒體</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>加入資料夾</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>從裝置匯入</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>找不到任何檔案。</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>無法讀取找到的檔案。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>找到 %n 個檔案。</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>%1 在哪裡？</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>媒體所在的資料夾</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>代理檔</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>入點 %1，出點 %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>代理檔：%1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>代理檔：使用中</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>代理檔：未使用</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在讀取…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>離線</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>無法讀取</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>時間軸上有 %n 個片段</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>不在時間軸上</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>搜尋媒體</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>格狀</translation>
    </message>
    <message>
        <source>List</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>加入…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒體</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>將媒體拖放到這裡，或加入檔案和資料夾。</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>找不到任何項目</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>已選取 %n 個檔案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>正在讀取 %n 個檔案…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>無法將 %1 作為媒體讀取。</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>無法將 %1 及另外 %n 個檔案作為媒體讀取。</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>無法建立 %1 的代理檔：%2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>按鈕</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>多種狀態</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>圖片與文字</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>分頁</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>最後的訊號</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>暫時沒有</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>按下 %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>在 (%2, %3) 點擊 %1</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>進入 %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>離開 %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>附圖示</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>最愛</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已勾選</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>點擊 %1，顯示 %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>點擊 %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>圖片在左</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>在上方</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>圖片在右</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>在下方</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒體</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>特效</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>已選取 %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>適用於由右至左的語言</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>適用於由左至右的語言</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>加入轉場</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>加入標題</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>更改速度</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>加入特效</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>移除特效</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>移動特效</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>開啟或關閉特效</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>更改轉場</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合方式</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>完整畫面</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>填滿影格</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>原始像素</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> 格</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>減少噪音</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>中心 X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>中心 Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>色彩增值</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>濾色</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>覆蓋</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>變暗</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>變亮</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>相加</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差異化</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>加亮顏色</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>加深顏色</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>實光</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>柔光</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>排除</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>平衡</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>音高</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>淡入</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>淡出</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>單聲道</translation>
    </message>
    <message>
        <source> st</source>
        <translation> 半音</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>顏色</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>開場</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>黎明的海港</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>訪問，第 1 部分</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>市集</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>訪問，第 2 部分</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>夜間駕駛</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>無法開啟記錄檔 %1，將會在沒有記錄的情況下繼續。</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>引擎遺失或無法啟動：%1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>無法建立資料夾 %1。</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>說明媒體檔案的內容，並為每個檔案產生縮圖一覽。</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>顯示此說明。</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>結果的資料夾。</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>記錄檔，預設為結果資料夾中的 %1。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>同時顯示記錄。</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>媒體檔案。</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>媒體…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>未指定媒體檔案。</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>將所有媒體檔案依次寫成影片存入此檔案，副檔名決定編碼方式。</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>影片編碼所用的預設組合。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>列出影片的預設組合。</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>沒有畫面</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>縮放比例</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>最後的訊號</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>拖曳始於 %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>拖曳止於 %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>小型剪輯器。</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>將視窗圖片寫入 &lt;file&gt;。</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>要開啟的項目，以及要放入媒體庫的媒體。</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>引擎遺失。</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>用媒體自動製作一段短片，並將圖片、短片及報告放入 &lt;資料夾&gt;。</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>媒體</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>時間軸</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
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
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>提升入點至出點</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>提升</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>抽取入點至出點</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>抽取</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>媒體(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>時間軸(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>鍵盤快捷鍵</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具列</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>記錄中有 %n 則關於此檔案的備註</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>請先設定入點和出點。</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>剪輯器意外結束。可以開啟 %1 截至 %2 的更改。</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>正在寫入影片。要中止嗎？</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>算繪預覽，或停止</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>無法寫入 %1。</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>淺色樣式</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>加入特效</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>畫面</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>提前套用</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>延後套用</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>無法這樣組合</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>沒有這個預設組合。</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>由處理器編碼和解碼。</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>由處理器編碼；顯示硬件協助解碼。</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>加入輪候清單</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>預設組合</translation>
    </message>
    <message>
        <source>film</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>選擇檔案</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>與項目相同</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>影格速率</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>從入點到出點</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>入點</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>出點</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範圍</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>硬件</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>靜態圖片…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>寫入播放磁頭處的影格</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>無法複製項目。</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>靜態圖片</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/影格 %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>圖片 (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 已在佇列中。</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 已存在。要取代嗎？</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>沒有名為「%1」的預設組合。</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>引擎沒有預設組合。</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>已編碼：%1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>未有寫入 %1；原因請見記錄檔。</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>未有寫入 %1</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>暫時沒有影片</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等候中</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>正在寫入</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩餘 %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>已寫入</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>從清單移除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開啟…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>另存新檔…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>開啟最近的項目</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>儲存更改</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>項目有尚未儲存的更改。</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>沒有檔案</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>選擇檔案</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>系統字體</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>尺規</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>拖曳播放磁頭；滾輪可捲動，按住 Ctrl 可縮放；按兩下顯示全部。</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>滑桿</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>可拖曳、使用滾輪或方向鍵。</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>按鈕與標籤</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>最後一行顯示它們發出的訊號。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>從相機、手機和記憶卡複製媒體。</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>選擇會即時套用到所有視窗。</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>由頁面 &lt;name&gt; 開始。</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>列出頁面名稱。</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>無法寫入 %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>沒有頁面 %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>拖曳數值</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>拖曳數字，按住 Shift 較快，按住 Ctrl 較慢；點擊可編輯。</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>播放器</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>開啟檔案並播放；K 播放或暫停，逗號和句號逐格移動。</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib 介面元件</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>今後文字使用的語言，例如 German。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>沒有語言 %1。可用的語言：%2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選擇…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>匯入目的地資料夾</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>匯入進度</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>匯入至</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>找不到裝置</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>請連接相機、手機或讀卡器，開啟電源並解除鎖定。</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>正在開啟 %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>無法開啟 %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>請解除裝置鎖定並允許存取檔案，然後再次選擇。</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 已移除</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>請重新連接以繼續。</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>已選檔案：%1（%2）</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>正在讀取內容… 檔案：%1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>未命名裝置</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>裝置上的檔案：%1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>裝置停止回應；這可能不是全部內容。</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>無法寫入此資料夾。</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>正在匯入… %1／%2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>已匯入檔案：%1／%2。</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>匯入期間裝置已移除。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>未匯入：%1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>完成後從裝置刪除</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>此資料夾僅剩 %1 的空間。</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>另一個視窗已開啟裝置。請關閉該視窗，然後再次選擇此裝置。</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改時間</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>裝置內容</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>上一個關鍵影格</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>關鍵影格</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>下一個關鍵影格</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>線性</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>至下一個關鍵影格</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>匯入媒體…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>在播放磁頭處分割</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>加入轉場</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>儲存項目</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>語言：</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>語言的字型：</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>實際顯示字型：</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>閱讀方向：</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>片段：</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>範例</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>由右至左</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>由左至右</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>已選取 %Ln 個片段</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>軌道 %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>鎖定</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>獨奏</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>音量錶</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>記錄</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>加入媒體</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>移除媒體</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>重新連結媒體</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>使用原始媒體</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>使用代理檔</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>設定入點和出點</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>清除入點和出點</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>放置片段</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>是資料夾，不是媒體檔案</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>此使用者無權讀取</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>無法作為媒體讀取</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>既沒有畫面也沒有聲音</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>沒有影格</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>影格 %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>第 %1 張畫面，共 %2 張：影格 %3，%4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1，未解碼</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>無法解碼當中任何畫面</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%2 張畫面中有 %1 張無法解碼；檔案可能已損毀</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>波形：第 %1 部分，共 %2 部分</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>無法解碼其聲音</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>無法將結果寫入 %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>已寫入：%1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>不明的編解碼器</translation>
    </message>
    <message>
        <source>video</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>旋轉 %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n 條聲道</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>靜態圖片，%1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>沒有畫面也沒有聲音</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n 個影格</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>串流 %1：%2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>取樣率：%1</translation>
    </message>
</context>
<context>
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>向右移位</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>向上移位</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>寬度倍率</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>高度倍率</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>不透明度倍率</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>動態</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>關鍵影格</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>更改動態</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> 格</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>放置畫面</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>畫面</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>沒有開啟任何檔案。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>後退一格</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>前進一格</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開啟…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>安全區域</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合大小</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填滿</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>畫面大小</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>前一秒：顯示 %1、捨棄 %2、延遲 %3、快取 %4、偏差 %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>無法播放 %1。</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>就緒：%1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>播放或暫停</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>倒轉播放</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>正向播放</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>後退一格</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>前進一格</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>移至開頭</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>移至結尾</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>設定入點</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>設定出點</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>清除入點和出點</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>移至入點</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>移至出點</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>設定或移除標記</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>安全區域</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>以全螢幕顯示畫面</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>播放磁頭的時間碼</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>播放磁頭</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>無法建立項目</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>無法開啟 %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>無法儲存 %1</translation>
    </message>
</context>
<context>
    <name>ProjectFields</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>影格速率</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>預覽縮放比例</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>取樣率</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>色彩位元數</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>平滑縮放</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>平衡</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>獨奏</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>繪製</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>特效</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>加入標題</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>混音器，軌道 %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>轉場</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>動態</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>轉場</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>參數</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>還原為預設值</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>更改%1</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>ScaleUnitSlider</name>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>鍵盤快捷鍵</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>指令</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按鍵</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>播放進度列</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>其他填充與滑槽</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>由右至左</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>空範圍</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>縮放列</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>鏡像版面</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>長條</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>其他色彩</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>直立</translation>
    </message>
</context>
<context>
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>還原為預設值</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>無法繪製影格</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>未有寫入 %1：%2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>貼齊</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>滾動</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>修剪</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>滑移</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>滑動</translation>
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
        <source>Paste insert</source>
        <translation>插入貼上</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>漣漪刪除</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>在播放磁頭處分割</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>將開頭修剪至播放磁頭</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>將結尾修剪至播放磁頭</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>消除播放磁頭處的空隙</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>組合</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>取消組合</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>鎖定或解鎖軌道</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>選取播放磁頭處的片段</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>取消選取</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>提前一格</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>延後一格</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>提前一秒</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>延後一秒</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>移至上一條軌道</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>移至下一條軌道</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>上一個剪輯點</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>下一個剪輯點</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>選取工具</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>漣漪工具</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>滾動工具</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>滑移工具</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>滑動工具</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>剃刀工具</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>符合視窗大小</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>增加軌道高度</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>減少軌道高度</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>漣漪修剪</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>隱藏或顯示軌道</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>將軌道靜音或取消靜音</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>軌道獨奏或取消</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>組合</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>取消組合</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>漣漪刪除</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>插入貼上</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>消除空隙</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>鎖定軌道</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>解鎖軌道</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>重新命名軌道</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>時間軸</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>播放磁頭</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1，軌道 %2，影格 %3 至 %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>尺規</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>插入媒體</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>加入媒體</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長度</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>在開頭</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>在結尾</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>移除標記</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>設定標記</translation>
    </message>
</context>
</TS>
