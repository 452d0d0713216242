#pragma once

#include "randomWorld.h"

#include "facade/devicelore.h"

#include <QStringList>

namespace kestrova::test {

/// Every question that the world is asked, with its answer in words.
QStringList answersOf(Morvel::Devicelore::CDevicelore & library, RandomWorld const & world);

/// What an object's definition holds, in words.
QString wordsOf(Morvel::Devicelore::CObjectDef const & object);

} // namespace kestrova::test
