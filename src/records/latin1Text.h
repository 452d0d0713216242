#pragma once

#include <QString>
#include <QVarLengthArray>

namespace kestrova::Morvel::Devicelore {

/// The bytes of QString::toLatin1(), on the stack: texts of this length are converted too often for an
/// allocation each.
class Latin1Text {
public:
    explicit Latin1Text(QString const & text)
    {
        bytes.resize(text.size() + 1);
        char * byte = bytes.data();
        for (QChar const unit : text)
            *byte++ = unit.unicode() <= 0xFF ? static_cast<char>(unit.unicode()) : '?';
        *byte = 0;
    }

    /// Ended by 0. Read as a C text it ends at the first 0.
    char const * constData() const { return bytes.constData(); }

private:
    QVarLengthArray<char, 256> bytes;
};

} // namespace kestrova::Morvel::Devicelore
