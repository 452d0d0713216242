#include <QDirIterator>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(quint8 const * data, std::size_t size);

/// Feeds every file of a folder to the target, in a build without a fuzzer.
int main(int argc, char ** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    int count = 0;
    QDirIterator files(QFile::decodeName(argv[1]), QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        QByteArray const bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<quint8 const *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
        ++count;
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
