<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Кнопки</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Несколько состояний</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Изображение и текст</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Вкладки</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Надписи</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Последний сигнал</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>пока нет</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>Нажата %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>Щелчок по %1 в (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Курсор вошёл в %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Курсор покинул %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычная</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Со значком</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Включена</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>Щелчок по %1, показано %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>Щелчок по %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Снизу</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Медиа</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Титры</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Эффекты</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>Выбрано: %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>для языка с письмом справа налево</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>для языка с письмом слева направо</translation>
    </message>
</context>
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
        <translation>Описывает медиафайлы и создаёт контактный лист для каждого.</translation>
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
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Записать фильм из всех медиафайлов в этот файл; его расширение определяет кодирование.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Набор настроек, с которым кодируется фильм.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Перечислить наборы настроек для фильмов.</translation>
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
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Последний сигнал</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>перетаскивание начато: %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>перетаскивание закончено: %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Набора настроек «%1» нет.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>У движка нет наборов настроек.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>закодировано: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 не записан; причина указана в журнале.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Линейка</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Перетащите указатель; колесо прокручивает, с Ctrl — меняет масштаб; двойной щелчок показывает всё.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Ползунки</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Перетаскивайте, крутите колесо или нажимайте стрелки.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Кнопки и надписи</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>В последней строке видно, о чём они сообщают.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Копирует медиафайлы с камер, телефонов и карт памяти.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Языки</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Выбор сразу действует во всех окнах.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>Показывает элементы управления библиотеки.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Начать со страницы &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Перечислить имена страниц.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Записать изображение страницы в &lt;file&gt;.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>не удаётся записать %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>нет страницы %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Значения перетаскиванием</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Тяните число: с Shift быстрее, с Ctrl медленнее; щелчок — правка.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Плеер</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Откройте файл и воспроизведите его; K — пуск и пауза, запятая и точка — на кадр назад и вперёд.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Элементы управления CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
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
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>Нет языка %1. Доступны: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Папка для импорта</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Ход импорта</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Импортировать в</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Устройства не найдены</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Подключите камеру, телефон или устройство чтения карт, включите и разблокируйте его.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Открывается %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Не удаётся открыть %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Разблокируйте устройство, разрешите доступ к файлам и выберите его снова.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Устройство %1 отключено</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Подключите его снова, чтобы продолжить.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Выбрано файлов: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Чтение содержимого… Файлов: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Устройство без имени</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Файлов на устройстве: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Устройство перестало отвечать; возможно, это не всё.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>В эту папку нельзя записывать.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Импорт… %1 из %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Импортировано файлов: %1 из %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Устройство отключили во время импорта.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Отменено.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Не импортировано: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Затем удалить с устройства</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>В этой папке есть место только для %1.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Содержимое устройства</translation>
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
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>выбран %Ln клип</numerusform>
            <numerusform>выбрано %Ln клипа</numerusform>
            <numerusform>выбрано %Ln клипов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Индикатор уровня</translation>
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
    <message>
        <source>sample rates: %1</source>
        <translation>частоты дискретизации: %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Ничего не открыто.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>На кадр назад</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>На кадр вперёд</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Открыть…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Безопасные зоны</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Заполнить</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Размер изображения</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Последняя секунда: показано %1, пропущено %2, с опозданием %3, из кэша %4, расхождение %5 мс</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 нельзя воспроизвести.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Готово: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
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
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Полоса перемотки</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычная</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Другие заполнение и дорожка</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Справа налево</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Пустой диапазон</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Полоса масштаба</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Зеркальное расположение</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Полоса</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Другие цвета</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Вертикально</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Линейка</translation>
    </message>
</context>
</TS>
