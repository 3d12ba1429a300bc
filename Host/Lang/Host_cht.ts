<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
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
        <translation>尚無</translation>
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
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>開場</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>黎明的港口</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>訪談，第 1 部分</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>市集</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>訪談，第 2 部分</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>夜間行車</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>無法開啟記錄檔 %1，將在沒有記錄的情況下繼續。</translation>
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
        <translation>將所有媒體檔案依序寫成影片存入此檔案，副檔名決定編碼方式。</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>影片編碼所用的預設組。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>列出影片的預設組。</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>無畫面</translation>
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
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>沒有名為「%1」的預設組。</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>引擎沒有預設組。</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>已編碼：%1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>未寫入 %1；原因請見記錄檔。</translation>
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
        <translation>選擇會立即套用到所有視窗。</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>顯示程式庫的介面元件。</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>從頁面 &lt;name&gt; 開始。</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>列出頁面名稱。</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>將頁面圖片寫入 &lt;file&gt;。</translation>
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
        <translation>請連接相機、手機或讀卡機，開啟電源並解除鎖定。</translation>
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
        <translation>儲存專案</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>音量表</translation>
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
        <translation>既無畫面也無聲音</translation>
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
        <translation>無法解碼其中任何畫面</translation>
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
        <translation>未知的編解碼器</translation>
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
            <numerusform>%n 個聲道</numerusform>
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
        <translation>無畫面也無聲音</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>尺規</translation>
    </message>
</context>
</TS>
