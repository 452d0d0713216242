#pragma once

#include "check/finding.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QVector>

namespace kestrova::authoring {

/// Findings that have been accepted. A finding is known by its rule, file, table, column, subject and value;
/// not by its row, which moves when others come and go.
///
/// The file is text, one finding a line, its fields separated by tabs; lines that begin with # are comments.
class Baseline {
public:
    Baseline() = default;

    /// Throws Failure with ExitUsage that names the line when the text is no baseline.
    Baseline(QByteArray const & text, QString const & fileName);

    bool accepts(Finding const & finding) const;

    /// The lines that none of the findings has: what was mended since.
    QStringList outdated(QVector<Finding> const & findings) const;

    static QByteArray textOf(QVector<Finding> const & findings);

private:
    QSet<QString> lines;
};

} // namespace kestrova::authoring
