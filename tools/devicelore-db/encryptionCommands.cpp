#include "command.h"
#include "longWork.h"
#include "outputFile.h"

#include "common/program.h"
#include "sqlcipher/databaseFile.h"
#include "sqlcipher/databaseKey.h"

#include <QFileInfo>

#include <algorithm>

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

void tellWhoseCipher()
{
    if (KESTROVA_CORE_IS_FOREIGN)
        complain(QStringLiteral(
            "cipher and key are those of the stand-in for the core library, not those of the core "
            "library that this build uses"));
}

sqlcipher::PageFormat const & formatOf(ParsedArguments const & arguments)
{
    if (!arguments.isSet("format"))
        return sqlcipher::version4;
    QString const version = arguments.value("format");
    auto const found = std::find_if(
        sqlcipher::pageFormats.begin(), sqlcipher::pageFormats.end(),
        [&](sqlcipher::PageFormat const & format) { return version == QString::number(format.version); });
    if (found == sqlcipher::pageFormats.end())
        throw Failure(
            ExitUsage,
            QStringLiteral("--format takes 4 or 3, not '%1'; see devicelore-db --help").arg(version));
    return *found;
}

} // namespace

Answer encrypt(ParsedArguments const & arguments)
{
    QString const & plain = arguments.words.at(0);
    QString const & encrypted = arguments.words.at(1);
    sqlcipher::PageFormat const & format = formatOf(arguments);
    checkFiles(plain, encrypted, arguments.isSet("force"));
    tellWhoseCipher();
    LongWork work(QStringLiteral("encrypting"));
    sqlcipher::encryptDatabase(plain, encrypted, format, sqlcipher::databaseKey, work.progress());
    return {};
}

Answer decrypt(ParsedArguments const & arguments)
{
    QString const & encrypted = arguments.words.at(0);
    QString const & plain = arguments.words.at(1);
    checkFiles(encrypted, plain, arguments.isSet("force"));
    tellWhoseCipher();
    LongWork work(QStringLiteral("decrypting"));
    sqlcipher::decryptDatabase(encrypted, plain, sqlcipher::databaseKey, work.progress());
    return {};
}

} // namespace kestrova::authoring
