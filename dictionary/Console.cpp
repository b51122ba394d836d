// SPDX-License-Identifier: MIT
#include "Console.h"

#include <cstdio>

#include <unistd.h>

namespace {

QString progressShown;

void write(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    fflush(stream);
}

} // namespace

void Console::print(const QString &line)
{
    clearProgress();
    write(stdout, line + QLatin1Char('\n'));
}

void Console::complain(const QString &line)
{
    clearProgress();
    write(stderr, QLatin1String("hmi-dictionary: ") + line + QLatin1Char('\n'));
}

void Console::showProgress(const QString &what, qint64 done, qint64 total)
{
    static const bool onTerminal = isatty(STDERR_FILENO);
    if (!onTerminal || total <= 0)
        return;
    const QString text = QString::fromLatin1("%1 %2%").arg(what).arg(done * 100 / total);
    if (text != progressShown) {
        clearProgress();
        write(stderr, text);
        progressShown = text;
    }
}

void Console::clearProgress()
{
    if (!progressShown.isEmpty()) {
        write(stderr, QLatin1String("\r\033[K"));
        progressShown.clear();
    }
}
