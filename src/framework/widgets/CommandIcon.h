#pragma once

#include <QIcon>
#include <QString>

namespace dyeworks {

/// The program's drawing of that name (":/icons/<name>.svg") as an icon: drawn anew for every size and scale
/// factor, in the text colour of the palette at the time it is shown, dimmed where it is disabled. An empty
/// name gives an empty icon.
QIcon commandIcon(const QString& name);

/// The same of a sign that stands beside a text: it looks alike where that is chosen.
QIcon signIcon(const QString& name);

} // namespace dyeworks
