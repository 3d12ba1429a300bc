<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_HK" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>無壓縮 4:2:2，10 位元</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEG 傳輸串流</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEG 節目串流</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF 動畫</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG 序列</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF 序列</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG 序列</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4 音訊</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Ogg 音訊</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows Media 音訊</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264（存檔用）</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264（串流用）</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 無損</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 位元</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9（含 Alpha）</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF 序列 16 位元</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 交錯式</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24 位元</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>沒有錯誤</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>缺少必要的項目</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>不獲接納的數值</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>超出範圍</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>沒有此名稱的項目</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>沒有此編號的項目</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>現時無法執行</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>未有提供</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>無法更改的數值</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>沒有這個數值</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>沒有可顯示或寫入的內容</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>此物件不能在該處使用</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>檔案不存在</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>無法讀取檔案</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>檔案已損壞或格式不明</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>無法寫入檔案或資料夾</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>磁碟已滿</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>沒有此名稱的輸出格式</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>此格式不支援這些設定</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黑階</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>樞軸點</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>飽和度</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>色溫</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>色調</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>曲線</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>主曲線</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>查找表 (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>強度</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>色鍵</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>容差</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>柔化邊緣</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>去除溢色</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>暗角</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>中心（水平）</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>中心（垂直）</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>頻率</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>共振</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>目標響度</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>最大真實峰值</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>量度所得響度</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>量度所得響度範圍</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>量度所得真實峰值</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>起音</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>釋放</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>閾值</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>壓縮器</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>壓縮比</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>補償增益</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>限幅器</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>噪音閘</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>衰減量</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>混響</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>混響時間</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>首次反射</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>回聲</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延遲</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>電平</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>重複次數</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>高通</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>低通</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>齒音消除</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>響度正規化</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>模糊</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>銳化</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>鏡像</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>左右反轉</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>上下反轉</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>減少噪點</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強度</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>陰影</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字體</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗體</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜體</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>字距</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>行距</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>由左至右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>由右至左</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>對齊</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>置中</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>垂直位置</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>向右移位</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>向下移位</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>最大行寬</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>邊距</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>外框</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>外框顏色</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>陰影顏色</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>陰影向右距離</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>陰影向下距離</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>陰影模糊</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>背景框顏色</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>背景框內邊距</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>背景框圓角</translation>
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
        <source>Roll</source>
        <translation>滾動</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>向下</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>向左</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>向右</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音訊交叉淡化</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>線性</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>等功率</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>無淡化</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>反向</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>向右下</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>向左下</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>向右上</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>向左上</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>溶解</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>淡入淡出至顏色</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>劃變</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圓形</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>菱形</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時鐘</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>對開門</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>推入</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>滑動</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>已略過一個特效</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>已略過一個轉場</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>不明類型的片段顯示為空白畫面</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>倒轉播放的片段改為正向播放</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>速度變更已略過或只是近似</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>檔案遺失；其片段為離線狀態</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>文件的一部分無法使用</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>標記只保留為文字</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>音量、平衡或不透明度只是近似</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>裝置不存在</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>軌道已鎖定</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>片段會重疊</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>片段沒有更多素材</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>片段將不會留下任何內容</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>無法剪切轉場</translation>
    </message>
</context>
</TS>
