#pragma once

// Implemented in runtime/app/process/dump.cpp

#include <QString>

namespace tetrad {

/// The application's windows and views, one a line, indented by depth: class, name, tag, geometry in its
/// parent, hidden or not, and text. A widget with an invokable `QString dump()` adds its own lines.
QString dumpViews();

/// Writes dumpViews() to standard error if the environment variable TETRAD_DUMP is set; every modal
/// run starts with that.
void dumpIfWanted();

} // namespace tetrad
