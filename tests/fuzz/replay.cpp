// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Takes libFuzzer's place where inputs are only tried once more: its arguments are files, and
// directories of files.

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

void refuse(const QString &path, const char *reason)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), reason);
    std::exit(2);
}

int tryFile(const QString &path)
{
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout); // it may be the last line
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, "cannot be read");
    const QByteArray bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                           size_t(bytes.size()));
    return 1;
}

int tryPath(const QString &path)
{
    const QDir directory(path);
    if (!directory.exists())
        return tryFile(path);
    int count = 0;
    const QStringList names = directory.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names)
        count += tryFile(directory.filePath(name));
    if (count == 0)
        refuse(path, "holds no inputs");
    return count;
}

} // namespace

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i)
        count += tryPath(QFile::decodeName(argv[i]));
    std::printf("inputs tried: %d\n", count);
    return count > 0 ? 0 : 2;
}
