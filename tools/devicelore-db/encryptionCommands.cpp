#include "command.h"
#include "commandLine.h"
#include "longWork.h"
#include "outputFile.h"

#include "sqlcipher/databaseFile.h"
#include "sqlcipher/databaseKey.h"

#include <QFileInfo>

namespace kestrova::authoring {

namespace {

void checkFiles(QString const & input, QString const & output, bool force)
{
    QString const inputFile = QFileInfo(input).canonicalFilePath(); // empty if there is none
    if (!inputFile.isEmpty() && inputFile == QFileInfo(output).canonicalFilePath())
        throw Failure(ExitUsage,
                      QStringLiteral("'%1' and '%2' are the same file; name another").arg(input, output));
    checkOutput(output, force);
}

} // namespace

Answer encrypt(CommandLine const & line)
{
    QString const & plain = line.arguments.at(0);
    QString const & encrypted = line.arguments.at(1);
    checkFiles(plain, encrypted, line.force);
    LongWork work(QStringLiteral("encrypting"));
    sqlcipher::encryptDatabase(plain, encrypted, *line.format, sqlcipher::databaseKey, work.progress());
    return {};
}

Answer decrypt(CommandLine const & line)
{
    QString const & encrypted = line.arguments.at(0);
    QString const & plain = line.arguments.at(1);
    checkFiles(encrypted, plain, line.force);
    LongWork work(QStringLiteral("decrypting"));
    sqlcipher::decryptDatabase(encrypted, plain, sqlcipher::databaseKey, work.progress());
    return {};
}

} // namespace kestrova::authoring
