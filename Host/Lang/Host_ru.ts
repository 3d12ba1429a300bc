<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Вступление</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Гавань на рассвете</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Интервью, часть 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Рынок</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Интервью, часть 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Ночная поездка</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Не удаётся открыть журнал %1; работа продолжается без него.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Движок отсутствует или не запускается: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Не удаётся создать папку %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Описывает медиафайлы и создаёт контрольный лист для каждого.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Папка для результатов.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>ПАПКА</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Файл журнала, по умолчанию %1 среди результатов.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Выводить также журнал.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Медиафайлы.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>МЕДИА…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Не указан ни один медиафайл.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>нет изображения</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Язык текстов с этого момента, например German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Импорт медиафайлов…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Разрезать по указателю</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Добавить переход</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Сохранить проект</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Шрифт языка:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Отображается шрифтом:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Направление чтения:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Клипы:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Образец</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>справа налево</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>слева направо</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>выбран %n клип</numerusform>
            <numerusform>выбрано %n клипа</numerusform>
            <numerusform>выбрано %n клипов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>не существует</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>это папка, а не медиафайл</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>не является обычным файлом</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>пуст</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>недоступен для чтения этому пользователю</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>не читается как медиафайл</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>не содержит ни изображения, ни звука</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>не содержит кадров</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>кадр %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>снимок %1 из %2: кадр %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, не декодирован</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>ни одно его изображение не декодируется</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>не удаётся декодировать изображений: %1 из %2; возможно, файл повреждён</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>форма сигнала: часть %1 из %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>не удаётся декодировать его звук</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>не удаётся записать результат в %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>записано: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>неизвестный кодек</translation>
    </message>
    <message>
        <source>video</source>
        <translation>видео</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>повёрнуто на %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 кадр/с</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>аудио</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Гц</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n канал</numerusform>
            <numerusform>%n канала</numerusform>
            <numerusform>%n каналов</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>другое</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Неподвижное изображение, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Нет ни изображения, ни звука</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n кадр</numerusform>
            <numerusform>%n кадра</numerusform>
            <numerusform>%n кадров</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>поток %1: %2</translation>
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
