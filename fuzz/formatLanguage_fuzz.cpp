#include "byteReader.h"

#include "records/objectDef.h"

#include <cstdlib>

using namespace kestrova::Morvel::Devicelore;
using kestrova::fuzz::ByteReader;

// Any format, any raw value, any text: a value is printed and parsed, or refused, and refusing changes
// nothing.

namespace {

void require(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

void print(QString const & format, QByteArray const & value, int length)
{
    // What the caller has to hold: the bytes of the largest size and the longest dump, and the end of a text.
    QByteArray data = value;
    data.append(QByteArray(512 - data.size(), '\0'));
    QString const before = QStringLiteral("before");
    for (bool const withUnit : {false, true}) {
        QString text = before;
        int textLength = -1;
        ConvertResult const result =
            CObjectDef::paraToStr(format, data.constData(), length, text, &textLength, withUnit);
        if (result != ConvertOk) {
            require(text == before && textLength == -1);
            continue;
        }
        require(textLength >= 0 && textLength <= 255 && text.size() <= 255);
        QString hyphens;
        CObjectDef::paraToStr(format, nullptr, length, hyphens, nullptr, withUnit);
        require(hyphens == QString(15, QLatin1Char('-')));
    }
}

void parse(QString const & format, QString const & text)
{
    QVariant const before(QStringLiteral("before"));
    QVariant value = before;
    ConvertResult const result = CObjectDef::strToPara(text, format, value);
    bool const isZeroOfFloat = value.userType() == QMetaType::Float;
    require(result == ConvertOk || value == before || isZeroOfFloat);
}

void describe(QString const & format, double minimum, double maximum)
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    object.setFormat(format);
    object.setMin(minimum);
    object.setMax(maximum);
    object.determineObjectType();
    object.isNumeric();
    require(CObjectDef::unit(format).size() <= format.size() + 3);
    CObjectDef::decimals(format);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(quint8 const * data, std::size_t size)
{
    ByteReader reader(data, size);
    QString const format = QString::fromLatin1(reader.bytes());
    int const length = reader.choice(256);
    QByteArray const value = reader.bytes();
    double const minimum = reader.real();
    double const maximum = reader.real();
    print(format, value, length);
    describe(format, minimum, maximum);
    parse(format, QString::fromUtf8(reader.rest()));
    return 0;
}
