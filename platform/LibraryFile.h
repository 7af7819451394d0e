#pragma once

#include <QtCore/QString>

namespace ombrin {

/// The file from which this library was loaded, as the loader names it; empty when it cannot tell.
QString libraryFile();

} // namespace ombrin
