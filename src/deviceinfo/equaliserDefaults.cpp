#include "deviceinfo/equaliserDefaults.h"

namespace kestrova::Morvel::Devicelore {

void addEqualiserDefaults(QHash<QString, QVariant> & defaultValues, QString const & stem)
{
    // Frequencies in hertz, quality factors, gains in decibels, and orders, which are whole numbers.
    struct Row {
        char const * parameter;
        QVariant value;
    };

    Row const rows[] = {
        {"_Fg", 1000.0},  {"_Q", 0.7},  {"_Vdb", 0.0},  {"_Order", 1},
        {"_Fg2", 2000.0}, {"_Q2", 0.7}, {"_Vdb2", 0.0}, {"_Order2", 1},
    };
    for (Row const & row : rows)
        defaultValues.insert(QStringLiteral("$P/") + stem + QLatin1String(row.parameter), row.value);
}

} // namespace kestrova::Morvel::Devicelore
