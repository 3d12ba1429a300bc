<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>無畫面</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>已選取 %n 個片段</numerusform>
        </translation>
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
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
