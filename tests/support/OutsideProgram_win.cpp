// SPDX-License-Identifier: LGPL-2.1-or-later
// Stands in for a program of the machine that Wine runs on, of its own file's name: runs that with
// the same arguments and gives its output, errors with it, and its exit code. What comes in is
// passed on where an argument is "-". COMMONLIB_DRIVES is the folder, as the machine names it, with
// a link "C:" or so to each drive; it is where the program runs, so that names inside of documents
// hold as well.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include <windows.h>
// After it, as it needs its types.
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

namespace {

namespace fs = std::filesystem;

// Wine's processes have no handle, exit code or pipe for a program of the machine: files tell. Its
// Qt knows nothing of Windows.
const wchar_t* const kScript =
    LR"(export QT_QPA_PLATFORM=offscreen; cd "$1"; p=$2; i=$3; o=$4; s=$5; shift 5; "$p" "$@" <"$i" >"$o" 2>&1; echo $? >"$s.new"; mv "$s.new" "$s")";

std::wstring Drives()
{
    wchar_t text[4096] = {};
    GetEnvironmentVariableW(L"COMMONLIB_DRIVES", text, DWORD(std::size(text)));
    return text;
}

// Names of files in it as the machine has them: "C:/a" lies below the folder of drives.
std::wstring Outside(const std::wstring& argument)
{
    static const std::wregex drive(LR"((^|[^A-Za-z])([A-Za-z]):[/\\])");
    std::wstring result;
    auto rest = argument.begin();
    for (std::wsregex_iterator it(argument.begin(), argument.end(), drive), end; it != end; ++it) {
        result.append(rest, (*it)[0].first);
        result += it->str(1) + Drives() + L'/' + wchar_t(towupper(it->str(2)[0])) + L":/";
        rest = (*it)[0].second;
    }
    return result.append(rest, argument.end());
}

// As programs on Windows split a command line.
std::wstring Quoted(const std::wstring& argument)
{
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : argument) {
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        if (c == L'"')
            result.append(1, L'\\');
        result += c;
    }
    return result.append(backslashes, L'\\') + L'"';
}

void SaveInput(const fs::path& path)
{
    _setmode(_fileno(stdin), _O_BINARY);
    std::ofstream file(path, std::ios::binary);
    char bytes[65536];
    for (std::size_t count = 0; (count = std::fread(bytes, 1, sizeof bytes, stdin)) > 0;)
        file.write(bytes, std::streamsize(count));
}

bool Start(const std::vector<std::wstring>& arguments)
{
    std::wstring line;
    for (const std::wstring& argument : arguments)
        line += (line.empty() ? L"" : L" ") + Quoted(argument);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    return CreateProcessW(L"Z:\\bin\\sh", line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process) != 0;
}

int ExitCode(const fs::path& status)
{
    while (!fs::exists(status))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    int code = -1;
    std::ifstream(status) >> code;
    return code;
}

} // namespace

int main()
{
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::wstring name = L"commonlib-" + std::to_wstring(GetCurrentProcessId());
    const fs::path folder = fs::temp_directory_path() / name;
    fs::create_directory(folder);
    const fs::path input = folder / "in";
    const fs::path output = folder / "out";
    const fs::path status = folder / "status";

    std::vector<std::wstring> arguments = {L"sh",
                                           L"-c",
                                           kScript,
                                           L"sh",
                                           Drives(),
                                           fs::path(words[0]).stem().wstring(),
                                           Outside(input.wstring()),
                                           Outside(output.wstring()),
                                           Outside(status.wstring())};
    for (std::wstring* file : {&arguments[6], &arguments[7], &arguments[8]})
        std::replace(file->begin(), file->end(), L'\\', L'/');
    bool takesInput = false;
    for (int i = 1; i < count; ++i) {
        takesInput = takesInput || std::wstring(words[i]) == L"-";
        arguments.push_back(Outside(words[i]));
    }
    if (takesInput)
        SaveInput(input);
    else
        std::ofstream{input};

    const int code = Start(arguments) ? ExitCode(status) : -1;
    _setmode(_fileno(stdout), _O_BINARY);
    std::cout << std::ifstream(output, std::ios::binary).rdbuf() << std::flush;
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    return code;
}
