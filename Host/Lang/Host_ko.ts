<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>제품: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>라이브러리의 기능을 보여 주는 작은 편집기입니다.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>파일…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>폴더…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>장치에서…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>재생 헤드에 배치</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>시작점 설정</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>종료점 설정</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>시작점과 종료점 지우기</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>프록시 만들기</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>프록시 만들기 취소</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>프록시 사용</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>위치 지정…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>폴더에서 오프라인 미디어 찾기…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>사용하지 않는 항목 모두 제거</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>미디어 추가</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>장치에서 가져오기</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>파일을 하나도 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>찾은 파일을 읽을 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>파일 %n개를 찾았습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>%1의 위치를 지정하세요.</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>미디어가 있는 폴더</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>시작 %1, 종료 %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>프록시: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>프록시: 사용 중</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>프록시: 사용 안 함</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>오프라인</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>타임라인의 클립 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>타임라인에 없음</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>미디어 검색</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>격자</translation>
    </message>
    <message>
        <source>List</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>추가…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>미디어</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>미디어를 여기에 끌어다 놓거나 파일과 폴더를 추가하세요.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>찾은 항목 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>파일 %n개 선택됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>파일 %n개 읽는 중…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1을(를) 미디어로 읽을 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 외 %n개를 미디어로 읽을 수 없습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>%1의 프록시를 만들 수 없음: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>버튼</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>여러 상태</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>그림과 글자</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>레이블</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>마지막 신호</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>아직 없음</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>%1 누름</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>(%2, %3)에서 %1 클릭</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>%1 진입</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>%1 벗어남</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>아이콘 포함</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>선택됨</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>%1 클릭, %2 표시</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>%1 클릭</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>그림 왼쪽</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>그림 오른쪽</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>미디어</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>타이틀</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>효과</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>%1 선택됨</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>오른쪽에서 왼쪽으로 쓰는 언어용</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>왼쪽에서 오른쪽으로 쓰는 언어용</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>전환 추가</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>타이틀 추가</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>속도 변경</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>효과 추가</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>효과 제거</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>효과 이동</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>효과 켜기/끄기</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>전환 변경</translation>
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
        <translation>맞춤 방식</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>전체 영상</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>프레임 채우기</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>늘이기</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>실제 픽셀</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source> fr</source>
        <translation>프레임</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>노이즈 감소</translation>
    </message>
    <message>
        <source> dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>중심 X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>중심 Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>곱하기</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>스크린</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>오버레이</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>더하기</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>차이</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>색상 닷지</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>색상 번</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>하드 라이트</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>소프트 라이트</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>밸런스</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>음높이</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
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
        <source>Mono</source>
        <translation>모노</translation>
    </message>
    <message>
        <source> st</source>
        <translation>반음</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>색상</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>오프닝</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>새벽의 항구</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>인터뷰 1부</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>시장</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>인터뷰 2부</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>야간 드라이브</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>로그 %1을(를) 열 수 없어 로그 없이 계속합니다.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>엔진이 없거나 시작되지 않습니다: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>폴더 %1을(를) 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>미디어 파일의 정보를 보여 주고 각각의 썸네일 모음을 저장합니다.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>결과를 저장할 폴더.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>로그 파일. 기본값은 결과 폴더의 %1입니다.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>로그도 표시합니다.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>미디어 파일.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>미디어…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>미디어 파일이 지정되지 않았습니다.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>모든 미디어 파일로 만든 영상을 이 파일에 씁니다. 확장자가 인코딩 방식을 정합니다.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>영상을 인코딩할 프리셋입니다.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>영상용 프리셋을 나열합니다.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>화면 없음</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>배율</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>마지막 신호</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>끌기 시작: %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>끌기 끝: %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>작은 편집기입니다.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>창의 그림을 &lt;file&gt;에 저장합니다.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>열 프로젝트와 미디어 보관함에 넣을 미디어.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>엔진이 없습니다.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>미디어로 짧은 동영상을 스스로 만들고 그림, 동영상, 보고서를 &lt;폴더&gt;에 넣습니다.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>미디어</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>타임라인</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
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
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>시작점부터 종료점까지 들어내기</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>들어내기</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>시작점부터 종료점까지 추출</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>추출</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>미디어(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>타임라인(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>재생(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>키보드 단축키</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>제목 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>파일에 대한 알림 %n개가 로그에 있습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>먼저 시작점과 종료점을 설정하세요.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>편집기가 예기치 않게 종료되었습니다. %2까지의 %1 변경 내용을 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>영상을 내보내는 중입니다. 중단할까요?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>미리 보기 렌더링 또는 중지</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>%1에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>밝은 스타일</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>효과 추가</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>먼저 적용</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>나중에 적용</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>이 조합은 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>해당하는 프리셋이 없습니다.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>프로세서가 인코딩하고 디코딩합니다.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>프로세서가 인코딩하고 그래픽 하드웨어가 디코딩을 돕습니다.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>대기열에 추가</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>영상</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>film</source>
        <translation>영상</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>프로젝트와 같게</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1fps</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>프레임 레이트</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>시작점부터 종료점까지</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>시작점</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>종료점</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>하드웨어</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>정지 화상…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>재생 헤드 위치의 프레임을 저장합니다</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>프로젝트를 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>정지 화상</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/프레임 %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>이미지 (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1이(가) 이미 대기열에 있습니다.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>프리셋 &quot;%1&quot;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>엔진에 프리셋이 없습니다.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>인코딩됨: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1을(를) 쓰지 못했습니다. 이유는 로그에 있습니다.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1을(를) 쓰지 못했습니다</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>아직 영상 없음</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>내보내는 중</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>내보내기 완료</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>목록에서 제거</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>열기…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>다른 이름으로 저장…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>최근 항목 열기</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>제목 없음</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>변경 내용 저장</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>프로젝트에 저장하지 않은 변경 내용이 있습니다.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>파일 없음</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>파일 선택</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>시스템 글꼴</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>눈금자</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>재생 헤드를 끌어 보세요. 휠은 스크롤, Ctrl과 함께는 확대·축소, 두 번 클릭하면 전체가 보입니다.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>슬라이더</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>끌거나 휠 또는 화살표 키를 사용하세요.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>버튼과 레이블</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>마지막 줄에 보낸 신호가 나옵니다.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>카메라, 휴대전화, 메모리 카드에서 미디어를 복사합니다.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>선택은 모든 창에 바로 적용됩니다.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>&lt;name&gt; 페이지부터 시작합니다.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>페이지 이름을 나열합니다.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1을(를) 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>%1 페이지가 없습니다</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>값 끌기</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>숫자를 끌어 보세요. Shift는 빠르게, Ctrl은 느리게, 클릭하면 편집합니다.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>플레이어</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>파일을 열어 재생합니다. K로 재생하고 일시 정지하며, 쉼표와 마침표로 한 프레임씩 이동합니다.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib 위젯</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>이제부터 사용할 언어(예: German).</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>%1 언어가 없습니다. 사용할 수 있는 언어: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>선택…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>가져올 폴더</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>가져오기 진행률</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>가져올 위치</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>장치를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>카메라, 휴대전화 또는 카드 리더를 연결하고 전원을 켠 뒤 잠금을 해제하세요.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 여는 중…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1을(를) 열 수 없습니다</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>장치 잠금을 해제하고 파일 접근을 허용한 다음 다시 선택하세요.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 제거됨</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>계속하려면 다시 연결하세요.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>선택한 파일: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>내용을 읽는 중… 파일: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>이름 없는 장치</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>장치의 파일: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>장치가 응답하지 않습니다. 전체가 아닐 수 있습니다.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>이 폴더에는 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>가져오는 중… %1/%2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>가져온 파일: %1/%2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>가져오는 동안 장치가 제거되었습니다.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>취소됨.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>가져오지 못함: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>가져온 후 장치에서 삭제</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>이 폴더에는 %1만 저장할 수 있습니다.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>다른 창에서 장치를 열고 있습니다. 그 창을 닫은 다음 이 장치를 다시 선택하세요.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>장치의 내용</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>이전 키프레임</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>키프레임</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>다음 키프레임</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>고정</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>선형</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>부드럽게</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>다음 키프레임까지</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>미디어 가져오기…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>재생 헤드에서 자르기</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>전환 추가</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>프로젝트 저장</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>언어:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>언어의 글꼴:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>실제 표시 글꼴:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>읽기 방향:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>클립:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>예시</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>왼쪽에서 오른쪽</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>클립 %Ln개 선택됨</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>트랙 %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>잠금</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>숨기기</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>솔로</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>레벨 미터</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>미디어 추가</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>미디어 제거</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>미디어 다시 연결</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>원본 미디어 사용</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>프록시 사용</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>시작점과 종료점 설정</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>시작점과 종료점 지우기</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>클립 배치</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>존재하지 않습니다</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>미디어 파일이 아니라 폴더입니다</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>이 사용자는 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>미디어로 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>영상도 소리도 없습니다</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>프레임이 없습니다</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>프레임 %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>이미지 %1/%2: 프레임 %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, 디코딩되지 않음</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>디코딩할 수 있는 이미지가 없습니다</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>이미지 %2개 중 %1개를 디코딩할 수 없습니다. 파일이 손상되었을 수 있습니다</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>파형: %1/%2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>소리를 디코딩할 수 없습니다</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>결과를 %1에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>저장됨: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>알 수 없는 코덱</translation>
    </message>
    <message>
        <source>video</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>%1° 회전</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1fps</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n채널</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>정지 화상, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>영상과 소리 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n프레임</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>스트림 %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>샘플링 레이트: %1</translation>
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
        <translation>회전</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>오른쪽으로 이동</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>너비 배율</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>높이 배율</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>불투명도 배율</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>모션</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>키프레임</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>모션 변경</translation>
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
        <translation>px</translation>
    </message>
    <message>
        <source> EV</source>
        <translation>EV</translation>
    </message>
    <message>
        <source> dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source> fr</source>
        <translation>프레임</translation>
    </message>
    <message>
        <source> s</source>
        <translation>초</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source> K</source>
        <translation>K</translation>
    </message>
    <message>
        <source> ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>화면 배치</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>화면</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>열린 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>한 프레임 뒤로</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>한 프레임 앞으로</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>열기…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>안전 영역</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>채우기</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>화면 크기</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>지난 1초: 표시 %1, 누락 %2, 지연 %3, 캐시 %4, 차이 %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 파일을 재생할 수 없습니다.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>준비됨: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>재생 또는 일시 정지</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>역재생</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>정방향 재생</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>한 프레임 뒤로</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>한 프레임 앞으로</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>처음으로 이동</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>끝으로 이동</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>시작점 설정</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>종료점 설정</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>시작점과 종료점 지우기</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>시작점으로 이동</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>종료점으로 이동</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>마커 설정 또는 제거</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>안전 영역</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>화면을 전체 화면으로 보기</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>재생 헤드의 타임코드</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>재생 헤드</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>프로젝트를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1을(를) 열 수 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1을(를) 저장할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>ProjectFields</name>
    <message>
        <source> px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>프레임 레이트</translation>
    </message>
    <message>
        <source> fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>미리 보기 배율</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>샘플링 레이트</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>채널</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>색상 비트 수</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>부드러운 확대·축소</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>밸런스</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>솔로</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>타이틀</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>클립</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>그리기</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>효과</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>타이틀 추가</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>믹서, 트랙 %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>전환</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>배치</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>혼합</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>모션</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>전환</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>매개변수</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>기본값으로 되돌리기</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 변경</translation>
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
        <translation>축소</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>키보드 단축키</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>키</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>탐색 막대</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>다른 채움과 홈</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>오른쪽에서 왼쪽으로</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>빈 범위</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>확대/축소 막대</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>좌우 반전 배치</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>막대</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>다른 색</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>세로</translation>
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
        <translation>속도</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>기본값으로 되돌리기</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>프레임을 그릴 수 없습니다</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1을(를) 쓰지 못했습니다: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>합성</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>스냅</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>롤</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>트림</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>슬립</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>슬라이드</translation>
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
        <source>Paste insert</source>
        <translation>삽입하여 붙여넣기</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>리플 삭제</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>재생 헤드에서 자르기</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>시작을 재생 헤드까지 트림</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>끝을 재생 헤드까지 트림</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>재생 헤드 위치의 빈 간격 닫기</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹화</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>그룹 해제</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>트랙 잠금 또는 잠금 해제</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>재생 헤드 위치 선택</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>선택 해제</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>한 프레임 앞당기기</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>한 프레임 늦추기</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>1초 앞당기기</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>1초 늦추기</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>위 트랙으로 이동</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>아래 트랙으로 이동</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>이전 편집점</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>다음 편집점</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>선택 도구</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>리플 도구</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>롤 도구</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>슬립 도구</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>슬라이드 도구</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>자르기 도구</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>창에 맞추기</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>트랙 높이 늘리기</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>트랙 높이 줄이기</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>리플 트림</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>트랙 숨기기 또는 표시</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>트랙 음소거 또는 해제</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>트랙 솔로 전환</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>자르기</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹화</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>그룹 해제</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>리플 삭제</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>삽입하여 붙여넣기</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>빈 간격 닫기</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>트랙 잠금</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>트랙 잠금 해제</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>트랙 이름 바꾸기</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>타임라인</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>재생 헤드</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>클립</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, 트랙 %2, 프레임 %3~%4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>눈금자</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>자르기</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>미디어 삽입</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>미디어 추가</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>시작 부분에</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>끝부분에</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>마커 제거</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>마커 설정</translation>
    </message>
</context>
</TS>
