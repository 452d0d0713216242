#include "byteReader.h"
#include "library.h"

using namespace kestrova::Morvel::Devicelore;
using kestrova::fuzz::ByteReader;

// Values of every type through the conversions and the validation, and the texts of devices.

namespace {

QVariant variantOf(ByteReader & reader)
{
    switch (reader.choice(10)) {
    case 0:
        return {};
    case 1:
        return static_cast<int>(reader.number());
    case 2:
        return reader.number();
    case 3:
        return reader.real();
    case 4:
        return QString::fromUtf8(reader.bytes());
    case 5:
        return reader.bytes();
    case 6:
        return static_cast<qint64>(reader.longNumber());
    case 7:
        return static_cast<float>(reader.real());
    case 8:
        return reader.byte() != 0;
    default:
        return QStringList{QString::fromUtf8(reader.bytes())};
    }
}

CObjectDef objectOf(ByteReader & reader)
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(static_cast<int>(reader.number()))));
    object.setFormat(QString::fromLatin1(reader.bytes(40)));
    object.setMin(reader.real());
    object.setMax(reader.real());
    object.setStep(reader.real());
    object.setSize(static_cast<unsigned short>(reader.number()));
    object.setFlags(static_cast<unsigned short>(reader.number()));
    object.determineObjectType();
    if (reader.choice(2) != 0)
        object.setObjectType(static_cast<CObjectDef::ObjectType>(reader.choice(6)));
    return object;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(quint8 const * data, std::size_t size)
{
    static CDevicelore & library = kestrova::fuzz::libraryWithoutDatabases();
    ByteReader reader(data, size);
    CObjectDef object = objectOf(reader);
    QVariant const given = variantOf(reader);

    QVariant value = given;
    library.deviceToReal(object, value);
    value = given;
    library.realToDevice(object, value);
    for (bool const roundToStep : {false, true}) {
        value = given;
        library.validateValue(value, object, roundToStep);
    }
    CObjectDef copy = object;
    library.deviceToReal(copy);
    library.realToDevice(object);

    QByteArray text = reader.rest() + '\0';
    CDevicelore::parseVokraAscii(reinterpret_cast<unsigned char *>(text.data()), value);
    return 0;
}
