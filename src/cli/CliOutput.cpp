#include "cli/CliOutput.h"

#include <cstdio>
#include <unistd.h>

namespace CliOutput {

namespace {
bool statusOpen = false;
}

void out(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

void err(const QString &line)
{
    endStatus();
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

bool stderrIsTerminal()
{
    static const bool tty = ::isatty(STDERR_FILENO) == 1;
    return tty;
}

void status(const QString &line)
{
    if (!stderrIsTerminal()) {
        err(line);
        return;
    }
    const QByteArray bytes = "\r\x1b[2K" + line.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
    statusOpen = true;
}

void endStatus()
{
    if (statusOpen) {
        std::fputc('\n', stderr);
        statusOpen = false;
    }
}

} // namespace CliOutput
