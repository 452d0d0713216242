#pragma once

#include "check/descriptionSet.h"
#include "check/finding.h"

#include "sqlcipher/inspection.h"

#include <QHash>

#include <vector>

namespace kestrova::authoring {

/// A row of which another database may have the like.
struct SeenRow {
    Place place;
    QStringList content; ///< all that counts of it
};

/// What the databases before this one hold of the things that the library joins over all databases. The rest
/// of a database is forgotten once it has been looked at.
struct SeenBefore {
    struct Device {
        Solvane::DataTypes::CDeviceGuid guid;
        QString model;
        int access;
        Place place;
    };

    std::vector<Device> devices; ///< as the library takes them, in its order
    QHash<int, SeenRow> hardwareTypes;
    QHash<int, SeenRow> objectClasses;
    QHash<int, SeenRow> speakerClasses;
    QHash<int, QVector<SeenRow>> speakers; ///< by the low byte of the id; the id is the first of the content
};

/// One database under the eyes of the rules.
struct Inspected {
    Database const & database;
    DescriptionSet & set;
    SeenBefore & seen;
    Findings & findings;

    /// Whether the device that is asked for by this text takes its objects and texts from this database.
    bool supplies(QString const & guid) const;

    /// A finding in a row. An empty \a column means the row as a whole.
    void report(char const * rule, Table const & table, int row, char const * column, QString const & subject,
                QString const & message) const;
};

/// Everything that is wrong with the databases of a set. \a progress is told after each step.
Findings checkDescriptions(DescriptionSet & set, sqlcipher::Progress const & progress = {});

// The rules, by subject.

void checkSchema(Inspected const & inspected);
void checkValues(Inspected const & inspected);
void checkDevices(Inspected const & inspected);
void checkHardwareTypes(Inspected const & inspected);
void checkLinks(Inspected const & inspected);
void checkObjects(Inspected const & inspected);
void checkObjectClasses(Inspected const & inspected);
void checkTexts(Inspected const & inspected);
void checkSpeakerClasses(Inspected const & inspected);
void checkSpeakers(Inspected const & inspected);
void checkFilters(Inspected const & inspected);
void checkGroups(Inspected const & inspected);
void checkDspData(Inspected const & inspected);

// What concerns the set as a whole.

void checkDeviceTypes(SeenBefore const & seen, Findings & findings);
void checkHardwareModels(SeenBefore const & seen, DescriptionSet & set, Findings & findings);
void checkDefaultSpeakers(SeenBefore const & seen, DescriptionSet & set, Findings & findings);

/// What a row is about, in words that survive a renumbering of the rows.
QString subjectOf(Table const & table, int row);

/// Whether a text is a GUID as the library compares it: eight hexadecimal digits in upper case.
bool isGuidText(QString const & text);

} // namespace kestrova::authoring
