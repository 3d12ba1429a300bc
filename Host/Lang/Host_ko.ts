<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>라이브러리의 위젯을 보여 줍니다.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>페이지의 그림을 &lt;file&gt;에 저장합니다.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>레벨 미터</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>눈금자</translation>
    </message>
</context>
</TS>
