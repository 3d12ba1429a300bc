<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Без сжатия 4:2:2, 10 бит</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Транспортный поток MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Программный поток MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Анимированный GIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Последовательность PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Последовательность TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Последовательность JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>Звук MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Звук Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Звук Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 для архива</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 для потоковой передачи</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 без потерь</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265, 10 бит</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 с альфа-каналом</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Последовательность TIFF, 16 бит</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 с чересстрочной развёрткой</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV, 24 бита</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Ошибок нет</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Не указано необходимое</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Недопустимое значение</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Вне допустимого диапазона</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Нет ничего с таким именем</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Нет ничего с таким номером</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Сейчас невозможно</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Не поддерживается</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Недостаточно памяти</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Это значение нельзя изменить</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Такого значения нет</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Нечего показывать или записывать</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Этот объект нельзя здесь использовать</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Файл не существует</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Не удаётся прочитать файл</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Файл повреждён или имеет неизвестный формат</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Не удаётся записать файл или папку</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Диск заполнен</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Нет формата записи с таким именем</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Формат не допускает эти настройки</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Экспозиция</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Уровень чёрного</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Контрастность</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Опорная точка</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Баланс белого</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Цветовая температура</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Оттенок</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Кривые</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Общая</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Таблица соответствия (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Интенсивность</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Хромакей</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Допуск</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Размытие края</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Подавление рефлексов</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Кадрирование</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Снизу</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Виньетка</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Центр по горизонтали</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Центр по вертикали</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Чёрно-белое</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Резонанс</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Целевая громкость</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Наибольший истинный пик</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Измеренная громкость</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Измеренный диапазон громкости</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Измеренный истинный пик</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Атака</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Порог</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Компрессор</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Степень сжатия</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Компенсация усиления</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Лимитер</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Предел</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Гейт шума</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Ослабление</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Реверберация</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время реверберации</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Первое отражение</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Микс</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Эхо</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Число повторов</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Фильтр верхних частот</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Фильтр нижних частот</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>Деэссер</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Глубина</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Нормализация громкости</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Размытие</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Резкость</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Зеркальное отражение</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>По горизонтали</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>По вертикали</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Шумоподавление</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Сила</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Тень</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Смещение по горизонтали</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Смещение по вертикали</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Полужирный</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Курсив</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Межбуквенный интервал</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Межстрочный интервал</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Слева направо</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Справа налево</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Выравнивание</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>По центру</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Положение по вертикали</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Посередине</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Сдвиг вправо</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Сдвиг вниз</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Наибольшая длина строки</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Обводка</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Цвет обводки</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Цвет тени</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Тень вправо</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Тень вниз</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Размытие тени</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Цвет подложки</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Отступ подложки</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Скругление подложки</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Плавное появление</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Плавное исчезновение</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Бегущие титры</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Титр</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Переход звука</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Линейный</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Равная мощность</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Без перехода</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Обратить</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Вправо вниз</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Влево вниз</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Вправо вверх</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Влево вверх</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Горизонтально</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Вертикально</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Растворение</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Переход через цвет</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Шторка</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Круг</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Ромб</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Створки</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Выталкивание</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Скольжение</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштабирование</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Эффект пропущен</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Переход пропущен</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Клип неизвестного типа показан пустым кадром</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Клип с обратным воспроизведением идёт вперёд</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Изменение скорости пропущено или передано приближённо</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Файл отсутствует; его клип недоступен</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Часть документа нельзя использовать</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Маркеры сохранены только как текст</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Громкость, баланс или непрозрачность переданы приближённо</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Устройство не существует</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Дорожка заблокирована</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Клипы наложились бы друг на друга</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>В клипе больше нет материала</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>От клипа ничего не осталось бы</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Переход нельзя разрезать</translation>
    </message>
</context>
</TS>
