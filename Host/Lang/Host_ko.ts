<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
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
        <translation>미디어 파일의 정보를 보여 주고 각각의 밀착 인화지를 저장합니다.</translation>
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>그림 없음</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>클립 %n개 선택됨</numerusform>
        </translation>
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
        <translation>그림 %1/%2: 프레임 %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, 디코딩되지 않음</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>디코딩할 수 있는 그림이 없습니다</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>그림 %2개 중 %1개를 디코딩할 수 없습니다. 파일이 손상되었을 수 있습니다</translation>
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
