<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Продукт: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Небольшой редактор, который показывает возможности библиотеки.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Файлы…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Папка…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>С устройства…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Поместить по указателю</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Задать точку входа</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Задать точку выхода</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Сбросить точки входа и выхода</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Создать прокси</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Отменить создание прокси</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Использовать прокси</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Указать файл…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Найти недоступные медиафайлы в папке…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Удалить все неиспользуемые</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Добавление медиафайлов</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Добавление папки</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Импорт с устройства</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Ни один из файлов не найден.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Найденные файлы не удаётся прочитать.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>Найден %n файл.</numerusform>
            <numerusform>Найдено %n файла.</numerusform>
            <numerusform>Найдено %n файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Где находится %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Папка с медиафайлами</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>вход %1, выход %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>прокси: %1 %</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>прокси: используется</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>прокси: не используется</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Недоступен</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Не удаётся прочитать</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n клип на таймлайне</numerusform>
            <numerusform>%n клипа на таймлайне</numerusform>
            <numerusform>%n клипов на таймлайне</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>нет на таймлайне</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Поиск медиафайлов</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Добавить…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Медиа</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Перетащите сюда медиафайлы или добавьте файлы и папки.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>Выбран %n файл</numerusform>
            <numerusform>Выбрано %n файла</numerusform>
            <numerusform>Выбрано %n файлов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Чтение %n файла…</numerusform>
            <numerusform>Чтение %n файлов…</numerusform>
            <numerusform>Чтение %n файлов…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 не читается как медиафайл.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 и ещё %n файл не читаются как медиафайлы.</numerusform>
            <numerusform>%1 и ещё %n файла не читаются как медиафайлы.</numerusform>
            <numerusform>%1 и ещё %n файлов не читаются как медиафайлы.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Прокси для %1 не создан: %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Добавление перехода</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Добавление титра</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Изменение скорости</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Добавление эффекта</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Удаление эффекта</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Перемещение эффекта</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Включение или отключение эффекта</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Изменение перехода</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписывание</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Изображение целиком</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Весь кадр</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Растянуть</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Пиксель в пиксель</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> кадр.</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Шумоподавление</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> дБ</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Центр по X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Центр по Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Умножение</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Перекрытие</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Замена тёмным</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Замена светлым</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Сложение</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Разница</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Осветление основы</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Затемнение основы</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Жёсткий свет</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Мягкий свет</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Исключение</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Высота тона</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Нарастание</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Затухание</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Моно</translation>
    </message>
    <message>
        <source> st</source>
        <translation> пт</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Небольшой редактор.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Записать изображение окна в &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Проект, который нужно открыть, и медиафайлы для медиатеки.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Движок отсутствует.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Самостоятельно сделать из медиафайлов небольшой фильм и поместить снимки, фильм и отчёт в &lt;папку&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Медиа</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Таймлайн</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Изъять от точки входа до точки выхода</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Изъятие</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Вырезать со сдвигом от точки входа до точки выхода</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Вырезание со сдвигом</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Медиа</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Таймлайн</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Воспроизведение</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ви&amp;д</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Без имени</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n замечание к файлу, см. журнал</numerusform>
            <numerusform>%n замечания к файлу, см. журнал</numerusform>
            <numerusform>%n замечаний к файлу, см. журнал</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Сначала задайте точки входа и выхода.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>Редактор неожиданно завершил работу. Можно открыть изменения в %1, сделанные до %2.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Идёт запись фильмов. Прервать её?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Рассчитать просмотр или остановить</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>Запись в %1 невозможна.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Светлый стиль</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Добавить эффект</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Применять раньше</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Применять позже</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Эти настройки несовместимы</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Такого набора настроек нет.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Кодирует и декодирует процессор.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Кодирует процессор; декодировать помогает графическое оборудование.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Добавить в очередь</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Фильмы</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Набор настроек</translation>
    </message>
    <message>
        <source>film</source>
        <translation>фильм</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Выбрать файл</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Как в проекте</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 кадр/с</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Гц</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Частота кадров</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Всё</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>От входа до выхода</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Точка входа</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Точка выхода</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Диапазон</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Оборудование</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Стоп-кадр…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Записывает кадр под указателем</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Не удаётся скопировать проект.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Стоп-кадр</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/кадр %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Изображения (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 уже стоит в очереди.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 уже существует. Заменить?</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>Файл %1 не записан</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Фильмов пока нет</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Записывается</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Осталось %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Записано</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Убрать из списка</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Открыть…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Открыть недавние</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Без имени</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Сохранение изменений</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>В проекте есть несохранённые изменения.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Нет файла</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Выбрать файл</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Системный шрифт</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Начать со страницы &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Перечислить имена страниц.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Устройство открыто в другом окне. Закройте то окно и выберите это устройство снова.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Предыдущий ключевой кадр</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Ключевой кадр</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Следующий ключевой кадр</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Линейно</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Плавно</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>До следующего ключевого кадра</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Дорожка %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Заблокировать</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Соло</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Добавление медиафайлов</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Удаление медиафайлов</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Повторное связывание медиафайлов</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Использование исходного медиафайла</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Использование прокси</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Установка точек входа и выхода</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Сброс точек входа и выхода</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Размещение клипа</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Сдвиг вправо</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Сдвиг вверх</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Множитель ширины</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Множитель высоты</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Множитель непрозрачности</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Движение</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Ключевой кадр</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Изменение движения</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source> px</source>
        <translation> пикс.</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> дБ</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> кадр.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Гц</translation>
    </message>
    <message>
        <source> K</source>
        <translation> К</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>Размещение изображения</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Пуск или пауза</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Воспроизвести назад</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Воспроизвести вперёд</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>На кадр назад</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>На кадр вперёд</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>В конец</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Задать точку входа</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Задать точку выхода</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Сбросить точки входа и выхода</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>К точке входа</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>К точке выхода</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Поставить или убрать маркер</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Безопасные зоны</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Изображение на весь экран</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Таймкод указателя</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Указатель воспроизведения</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Не удаётся создать проект</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>Не удаётся открыть %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>Не удаётся сохранить %1</translation>
    </message>
</context>
<context>
    <name>ProjectFields</name>
    <message>
        <source> px</source>
        <translation> пикс.</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Частота кадров</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> кадр/с</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Масштаб просмотра</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Частота дискретизации</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Гц</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Бит на цвет</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Сглаживание при масштабировании</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Соло</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Титр</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Клип</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Отрисовка</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Эффекты</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Добавить титр</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Микшер, дорожка %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Переход</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Размещение</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Наложение</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Движение</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Переходы</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Параметры</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Вернуть значение по умолчанию</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Изменение: %1</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Вернуть значение по умолчанию</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Не удаётся отрисовать кадр</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>Файл %1 не записан: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Составной клип</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Привязка</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Сдвиг склейки</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Подрезка</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Сдвиг содержимого</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Скольжение клипа</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Вставить со сдвигом</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Удалить со сдвигом</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Разрезать по указателю</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Подрезать начало до указателя</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Подрезать конец до указателя</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Закрыть промежуток под указателем</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Сгруппировать</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Разгруппировать</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Заблокировать или разблокировать дорожку</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Выделить под указателем</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Снять выделение</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>На кадр раньше</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>На кадр позже</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>На секунду раньше</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>На секунду позже</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>На дорожку выше</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>На дорожку ниже</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Предыдущая склейка</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Следующая склейка</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Инструмент выделения</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Подрезка со сдвигом (инструмент)</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Сдвиг склейки (инструмент)</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Сдвиг содержимого (инструмент)</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Скольжение клипа (инструмент)</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Лезвие</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Показать целиком</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Увеличить высоту дорожек</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Уменьшить высоту дорожек</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Подрезка со сдвигом</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Скрыть или показать дорожку</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Выключить или включить звук дорожки</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Соло дорожки вкл. или выкл.</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Разрезание</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезание</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставка</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группировка</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Разгруппировка</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Удаление со сдвигом</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Вставка со сдвигом</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Закрытие промежутка</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Блокировка дорожки</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Разблокировка дорожки</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Переименование дорожки</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Таймлайн</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Указатель воспроизведения</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Клипы</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, дорожка %2, кадры с %3 по %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Линейка</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Разрезание</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Вставка медиафайлов</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Добавление медиафайлов</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длительность</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>В начале</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>В конце</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Удаление маркера</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Установка маркера</translation>
    </message>
</context>
</TS>
