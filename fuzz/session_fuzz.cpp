#include "byteReader.h"
#include "library.h"
#include "world.h"

#include <QDir>
#include <QTemporaryDir>

using namespace kestrova::fuzz;

// A whole session over a random world: one to three device databases and that of the speaker DSP; tables and
// columns that are there or not, the old form of the schema and that of today, any type and value in any
// column.

extern "C" int LLVMFuzzerTestOneInput(quint8 const * data, std::size_t size)
{
    static QTemporaryDir const folder;
    ByteReader reader(data, size);
    int const databases = 1 + reader.choice(3);
    quint8 const otherLevel = reader.byte();
    for (QString const & name : QDir(folder.path()).entryList(QDir::Files))
        QFile::remove(folder.filePath(name));
    for (int i = 0; i < databases; ++i)
        writeRandomDatabase(folder.filePath(QStringLiteral("%1.db3").arg(i)), reader);
    QDir const dspFolder = speakerDspFolder();
    dspFolder.mkpath(QStringLiteral("."));
    writeRandomSpeakerDspDatabase(dspFolder.filePath(QStringLiteral("DspData.sqlite")), reader);
    askEverything(folder.path(), objectNames(), deviceGuids(), otherLevel);
    return 0;
}
