#pragma once

#include "description.h"
#include "inspector.h"

#include <QJsonObject>
#include <QString>

namespace kestrova::inspector {

/// A section: which description stands for a GUID, why, and from which database.
QString briefDescriptionSection(InspectorCache & cache, Description const & description);

/// The same with all versions that are known, and the access level.
QString descriptionSection(Inspector & inspector, Description const & description);

/// Sections: the model and where its name comes from, and what the description holds.
QString modelAndContentSections(Inspector & inspector, Description const & description);

/// The facts of descriptionSection() as JSON, and \a withContent those of modelAndContentSections() too.
QJsonObject storyJson(Inspector & inspector, Description const & description, bool withContent);

} // namespace kestrova::inspector
