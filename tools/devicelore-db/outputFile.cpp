#include "outputFile.h"

#include "common/failure.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace kestrova::tools;

namespace kestrova::authoring {

void checkOutput(QString const & path, bool force)
{
    QFileInfo const file(path);
    // A device or pipe would be replaced by a file just as a file is.
    if (file.exists() && !file.isFile())
        throw Failure(ExitUsage, QStringLiteral("'%1' is not a file; name a file to write").arg(path));
    if ((file.exists() || file.isSymLink()) && !force)
        throw Failure(ExitUsage, QStringLiteral("'%1' is there already; --force replaces it").arg(path));
}

void writeFile(QString const & path, QByteArray const & content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        throw Failure(ExitDatabase, QStringLiteral("cannot write '%1': %2").arg(path, file.errorString()));
}

} // namespace kestrova::authoring
