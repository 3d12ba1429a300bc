<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>비압축 4:2:2, 10비트</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEG 전송 스트림</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEG 프로그램 스트림</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>움직이는 GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG 시퀀스</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF 시퀀스</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG 시퀀스</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4 오디오</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Ogg 오디오</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows Media 오디오</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 보관용</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 스트리밍용</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 무손실</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10비트</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9(알파 포함)</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF 시퀀스 16비트</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 인터레이스</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24비트</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>오류 없음</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패했습니다</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>필요한 항목이 없습니다</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>허용되지 않는 값입니다</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>범위를 벗어났습니다</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>이 이름의 항목이 없습니다</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>이 번호의 항목이 없습니다</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>지금은 할 수 없습니다</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>지원되지 않습니다</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소되었습니다</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>변경할 수 없는 값입니다</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>해당하는 값이 없습니다</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>표시하거나 기록할 내용이 없습니다</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>이 개체는 그곳에서 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>파일을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>파일이 손상되었거나 알 수 없는 형식입니다</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>파일이나 폴더에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>디스크가 가득 찼습니다</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>이 이름의 쓰기 형식이 없습니다</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>이 형식에서는 해당 설정을 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>노출</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>검정 레벨</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>대비</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>피벗</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>화이트 밸런스</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>색온도</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>색조</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>곡선</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>마스터</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>녹색</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>룩업 테이블(LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>적용량</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>크로마 키</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>허용치</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>가장자리 부드럽게</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>스필 제거</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>자르기</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>비네트</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>가로 중심</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>세로 중심</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>흑백</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>공진</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>목표 라우드니스</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>최대 트루 피크</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>측정된 라우드니스</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>측정된 라우드니스 범위</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>측정된 트루 피크</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>어택</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>릴리스</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>컴프레서</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>비율</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>메이크업 게인</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>리미터</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>한도</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>노이즈 게이트</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>감쇠량</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>리버브</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>잔향 시간</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>초기 반사</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>믹스</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>에코</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>딜레이</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>반복 횟수</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>하이패스</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>로우패스</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>디에서</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>깊이</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>라우드니스 정규화</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>흐림</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>선명하게</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>미러</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>좌우 반전</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>상하 반전</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>노이즈 감소</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>강도</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>그림자</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>가로 오프셋</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>세로 오프셋</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>글꼴</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>굵게</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>기울임꼴</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>자간</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>행간</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>왼쪽에서 오른쪽으로</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>오른쪽에서 왼쪽으로</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>정렬</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>세로 위치</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>중간</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>오른쪽으로 이동</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>최대 줄 길이</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>여백</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>윤곽선</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>윤곽선 색상</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>그림자 색상</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>그림자 오른쪽 거리</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>그림자 아래쪽 거리</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>그림자 흐림</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>상자 색상</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>상자 안쪽 여백</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>상자 모서리</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>페이드 인</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>페이드 아웃</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>롤 자막</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>아래로</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>왼쪽으로</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>오른쪽으로</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>타이틀</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>오디오 크로스페이드</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>선형</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>등전력</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>페이드 없음</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>반전</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>오른쪽 아래로</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>왼쪽 아래로</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>오른쪽 위로</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>왼쪽 위로</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>디졸브</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>색상으로 물들이기</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>와이프</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>원형</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>다이아몬드</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>시계</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>여닫이문</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>밀기</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>슬라이드</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>효과가 생략되었습니다</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>전환이 생략되었습니다</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>알 수 없는 종류의 클립은 빈 화면으로 표시됩니다</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>역재생 클립이 정방향으로 재생됩니다</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>속도 변경이 생략되었거나 근사치입니다</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>파일이 없어 클립이 오프라인입니다</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>문서의 일부를 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>마커는 텍스트로만 유지됩니다</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>볼륨, 밸런스 또는 불투명도가 근사치입니다</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>장치가 없습니다</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>트랙이 잠겨 있습니다</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>클립이 겹치게 됩니다</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>클립에 더 이상 소재가 없습니다</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>클립에 남는 것이 없습니다</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>전환은 자를 수 없습니다</translation>
    </message>
</context>
</TS>
