// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QColor>
#include <QString>

class QWidget;

/// Free functions that the library's own classes and the host share.
///
/// A first parameter \a ignored is part of the signature only; pass null. Any thread may call these
/// functions, except for the registry of widgets and flags and the border colour, which are plain
/// globals: write them once at start. Nothing here logs or throws.

// Timecode and frame rates ------------------------------------------------------------------------

/// Timecode of \a frame, hours:minutes:seconds:frames with at least two digits each, exact to four
/// decimals of \a fps (frames per second). docs/timecode.md tabulates the rounding.
///
/// A negative frame wraps to a huge unsigned value. Gives 00:00:00:00 for a rate below 0.0001, not
/// a number, infinite, or too large to count its frames per hour in 64 bits.
COMMONLIB_EXPORT QString gFrame2String(int frame, float fps);

/// The same without the frames, hours:minutes:seconds. A negative frame gives negative fields.
///
/// Gives 00:00:00 for a rate that is not a number, below one frame per minute, or above what 32
/// bits count in an hour.
COMMONLIB_EXPORT QString gFrame2StringSecond(int frame, float fps);

/// Frame number of a timecode of one to three digits of hours, one or two each of minutes and
/// seconds (0..59), two or three of frames, white space around it allowed. A fractional rate rounds
/// the number up.
///
/// \return -1 when \a text is no such timecode or the result does not fit into 32 bits
COMMONLIB_EXPORT int gString2Frame(float fps, QString text);

/// The frame at rate \a toFps that shows at the same instant as \a frame at \a fromFps, rounded
/// toward zero. Of a number that does not fit into 32 bits the low 32 bits are given.
///
/// \return -1 when \a fromFps is closer to 0 than 0.00001, or when the result does not fit into 64
///         bits (which covers rates that are not numbers)
COMMONLIB_EXPORT int gFrameBaseFps(int frame, double fromFps, double toFps);

// Codec names -------------------------------------------------------------------------------------

/// The four characters of a FourCC \a code, least significant byte first: 0x34363248 is "H264".
COMMONLIB_EXPORT QString gMakeFourCCString(int code);

/// Whether a FourCC names H.264: its text contains "H264" or "AVC" in any case.
COMMONLIB_EXPORT bool gIsH264Coder(int code);

// Files and processes -----------------------------------------------------------------------------

/// Fingerprint of a media file: MD5, as 32 lower-case hexadecimal digits, over three blocks of
/// \a blockSize bytes at the start, the middle and the end. Costs the same for every large file.
///
/// A file of at most three blocks is hashed whole. When three blocks and the file differ in length
/// by an odd number, the last byte is left out. Block size 0 gives the MD5 of nothing.
///
/// \return an empty text when \a path cannot be opened or is no regular file (both also reported
///         on the debug channel), or when the file shrinks or fails while it is read
COMMONLIB_EXPORT QString GetFileMd5(quint64 blockSize, const QString& path);

/// The same, with the file's size and modification time hashed in, so that touching the file
/// changes the fingerprint.
COMMONLIB_EXPORT QString GetFileMd5_V2(quint64 blockSize, const QString& path);

/// Runs a program, without a shell, and gives what it writes to its standard output and error,
/// decoded in the system's narrow character set.
///
/// Blocks until the program and all that inherited its output have ended; the program itself is not
/// waited for. On Linux the line is split into words by the shell's quoting rules (no expansion of
/// any kind), the program is found through PATH, its standard input is empty, and it inherits no
/// other descriptor than the pipe.
///
/// Output is taken in pieces of at most 2,046 bytes, each up to its first zero byte, from a buffer
/// that is not cleared: a piece shorter than one before it is followed by the older bytes behind
/// it. Only output of at most 2,046 bytes that is written in one go is sure to come back as it is.
///
/// \return an empty text when the program cannot be started, a quote is left open, or it is silent
COMMONLIB_EXPORT QString excuteCmd(void* ignored, QString commandLine);

/// Deletes a file, or a folder with all it holds except hidden entries, broken links and special
/// files; a folder that holds any of these is left in place. A symbolic link is deleted as a link
/// and never followed. Then makes sure that the parent folder exists. An empty path does nothing.
COMMONLIB_EXPORT void RemoveDir(void* ignored, const QString& path);

/// Free space in MiB of the volume that holds \a path, or would hold it when it does not exist yet.
/// Counts all free bytes, not only those within the user's quota.
///
/// \return 2,147,483,647 when the system gives no answer
COMMONLIB_EXPORT quint64 gGetDiskFreeSpace(void* ignored, const QString& path);

/// Content of a style sheet, read as UTF-8; empty when it cannot be opened.
COMMONLIB_EXPORT QString gGetStyleSheet(void* ignored, QString path);

/// Opens a web address in the system's browser. When that fails, tries once more with every
/// "https://" replaced by "http://". GUI thread only.
COMMONLIB_EXPORT void gOpenUrl(void* ignored, QString url);

// Configuration -----------------------------------------------------------------------------------

/// The library's configuration folder, created when missing. Lies below the folder that the
/// environment variable ProgramData names, else below the user's generic data location.
COMMONLIB_EXPORT QString GetConfigfileDir();

/// Path of the settings file in GetConfigfileDir(). The file need not exist.
COMMONLIB_EXPORT QString GetSettingFilePath();

/// Writes a settings document without settings to \a path, replacing what is there. Nothing happens
/// when the file cannot be written.
COMMONLIB_EXPORT void CreateSettingsFile(const QString& path);

// System appearance -------------------------------------------------------------------------------

/// True on Windows 8 and later, and on every other system.
COMMONLIB_EXPORT bool gIsAboveWin7Sys();

/// Width of a window's border in pixels: 1 when gIsAboveWin7Sys(), else 0.
COMMONLIB_EXPORT int gGetSystemBorder();

/// Reads the desktop's accent colour for gGetBorderColor(): the window manager's on Windows, the
/// palette's highlight elsewhere. GUI thread only. Keeps the colour when the system names none.
COMMONLIB_EXPORT void gInitBorderColor();

/// Border colour of windows, opaque: the one that gInitBorderColor() read (black before that) when
/// \a useSystem, else the library's own.
COMMONLIB_EXPORT QColor gGetBorderColor(bool useSystem);

// Registry of the host ----------------------------------------------------------------------------

/// The host's main window, media view and player view. The pointers are kept as given, null until
/// set, and never owned: the host sets null before it destroys a widget that is still asked for.
COMMONLIB_EXPORT void gSetMainWindow(void* ignored, QWidget* widget);
COMMONLIB_EXPORT QWidget* gGetMainWindow();
COMMONLIB_EXPORT void gSetMatterView(void* ignored, QWidget* widget);
COMMONLIB_EXPORT QWidget* gGetMatterView();
COMMONLIB_EXPORT void gSetPlayerView(void* ignored, QWidget* widget);
COMMONLIB_EXPORT QWidget* gGetPlayerView();

/// Whether the interface language is written from right to left; false until set.
COMMONLIB_EXPORT void gSetArgLang(bool rightToLeft);
COMMONLIB_EXPORT bool gIsArgLang();
