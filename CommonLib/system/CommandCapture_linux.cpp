// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/CommandCapture_p.h"

#include <QByteArray>
#include <QList>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <pthread.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// Splits a command line by the shell's quoting rules: backslash, single and double quotes. Nothing
// is expanded.
class WordSplitter
{
public:
    explicit WordSplitter(const QString& line) : m_line(line) {}

    // Nothing when a quote is left open.
    std::optional<QStringList> Split()
    {
        while (m_at < m_line.size()) {
            if (!TakeOne())
                return std::nullopt;
        }
        EndWord();
        return m_words;
    }

private:
    bool TakeOne()
    {
        const QChar character = m_line[m_at++];
        if (character == ' ' || character == '\t' || character == '\n') {
            EndWord();
            return true;
        }
        if (character == '\\') {
            TakeEscaped();
            return true;
        }
        m_inWord = true;
        if (character == '\'')
            return TakeSingleQuoted();
        if (character == '"')
            return TakeDoubleQuoted();
        m_word += character;
        return true;
    }

    void TakeEscaped()
    {
        if (m_at < m_line.size() && m_line[m_at] == '\n') {
            ++m_at; // a continued line
            return;
        }
        m_inWord = true;
        m_word += m_at < m_line.size() ? m_line[m_at++] : QChar('\\');
    }

    bool TakeSingleQuoted()
    {
        const int end = m_line.indexOf('\'', m_at);
        if (end < 0)
            return false;
        m_word += m_line.mid(m_at, end - m_at);
        m_at = end + 1;
        return true;
    }

    bool TakeDoubleQuoted()
    {
        while (m_at < m_line.size()) {
            const QChar character = m_line[m_at++];
            if (character == '"')
                return true;
            // A backslash is itself unless one of these follows.
            const bool escapes = character == '\\' && m_at < m_line.size() &&
                                 QStringLiteral("$`\"\\\n").contains(m_line[m_at]);
            if (escapes && m_line[m_at] != '\n')
                m_word += m_line[m_at];
            else if (!escapes)
                m_word += character;
            m_at += escapes ? 1 : 0;
        }
        return false;
    }

    void EndWord()
    {
        if (m_inWord)
            m_words += m_word;
        m_word.clear();
        m_inWord = false;
    }

    const QString m_line;
    int m_at = 0;
    bool m_inWord = false; // a pair of quotes makes a word, too, if an empty one
    QString m_word;
    QStringList m_words;
};

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)
    int Number() const { return m_number; }
    int Take() { return std::exchange(m_number, -1); }

private:
    int m_number;
};

// The same file under a number above the standard ones, so that putting it there never meets it
// half way.
int AboveStandard(const Descriptor& descriptor)
{
    return ::fcntl(descriptor.Number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
}

void CloseAllAboveStandard()
{
    constexpr int first = STDERR_FILENO + 1;
#ifdef SYS_close_range
    if (::syscall(SYS_close_range, static_cast<unsigned>(first), ~0U, 0U) == 0)
        return;
#endif
    const long end = ::sysconf(_SC_OPEN_MAX);
    for (int number = first; number < end; ++number)
        ::close(number);
}

// Handlers go by themselves, but what the host ignores would stay ignored in the program.
void ResetSignals(const sigset_t& mask)
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number)
        ::sigaction(number, &action, nullptr);
    ::pthread_sigmask(SIG_SETMASK, &mask, nullptr);
}

struct Program
{
    QByteArray path;
    std::vector<char*> arguments;
    int input;
    int output;
    sigset_t mask; // the host's
};

// Runs between fork and exec in a process that may have had many threads: no memory is allocated
// and no lock taken.
[[noreturn]] void Become(const Program& program)
{
    ::dup2(program.input, STDIN_FILENO);
    ::dup2(program.output, STDOUT_FILENO);
    ::dup2(program.output, STDERR_FILENO);
    CloseAllAboveStandard();
    ResetSignals(program.mask);
    ::execv(program.path.constData(), program.arguments.data());
    ::_exit(127);
}

// Starts the program as a grandchild, which the system's first process waits for. So no zombie
// stays, and the host's own handling of ended children sees none that it does not know.
bool Launch(Program& program)
{
    sigset_t all;
    ::sigfillset(&all);
    // The host's signal handlers must not run in its copies.
    ::pthread_sigmask(SIG_SETMASK, &all, &program.mask);
    const pid_t child = ::fork();
    if (child == 0) {
        const pid_t grandchild = ::fork();
        if (grandchild == 0)
            Become(program);
        ::_exit(grandchild < 0 ? 1 : 0);
    }
    int status = 0;
    pid_t ended = -1;
    do
        ended = child < 0 ? -1 : ::waitpid(child, &status, 0);
    while (ended < 0 && child > 0 && errno == EINTR);
    ::pthread_sigmask(SIG_SETMASK, &program.mask, nullptr);
    // A host that ignores its children leaves nothing to wait for; that is no failure.
    return child > 0 && (ended < 0 || status == 0);
}

QString FindProgram(const QString& name)
{
    return name.contains('/') ? name : QStandardPaths::findExecutable(name);
}

} // namespace

CommandCapture::CommandCapture(const QString& commandLine)
{
    const std::optional<QStringList> words = WordSplitter(commandLine).Split();
    if (!words || words->isEmpty())
        return;
    const QString path = FindProgram(words->first());
    if (path.isEmpty())
        return;

    int ends[2] = {};
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return;
    Descriptor readEnd(ends[0]);
    const Descriptor writeEnd(ends[1]);
    const Descriptor null(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    const Descriptor input(AboveStandard(null));
    const Descriptor output(AboveStandard(writeEnd));
    if (input.Number() < 0 || output.Number() < 0)
        return;

    QList<QByteArray> texts;
    for (const QString& word : *words)
        texts += word.toLocal8Bit();
    Program program = {path.toLocal8Bit(), {}, input.Number(), output.Number(), {}};
    for (QByteArray& text : texts)
        program.arguments.push_back(text.data());
    program.arguments.push_back(nullptr);
    if (Launch(program))
        m_pipe = readEnd.Take();
}

CommandCapture::~CommandCapture()
{
    if (IsStarted())
        ::close(static_cast<int>(m_pipe));
}

bool CommandCapture::Read(char* buffer, int size)
{
    ssize_t count = -1;
    do
        count = ::read(static_cast<int>(m_pipe), buffer, static_cast<size_t>(size));
    while (count < 0 && errno == EINTR);
    return count > 0;
}
