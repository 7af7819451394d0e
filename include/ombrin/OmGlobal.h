#pragma once

#include <QtCore/QtGlobal>

/// \file
/// Export macros of the two libraries.
///
/// \c OMBRIN_AUTOTEST_EXPORT, and \c OMBRIN_CORE_AUTOTEST_EXPORT in the core library, mark what is
/// not part of the interface and what only the library's own tests and benchmarks link to: it is
/// exported in builds with those and hidden in all others.

#ifdef OMBRIN_BUILD_CORE
#define OMBRIN_CORE_EXPORT Q_DECL_EXPORT
#else
#define OMBRIN_CORE_EXPORT Q_DECL_IMPORT
#endif

#ifdef OMBRIN_BUILD_GUI
#define OMBRIN_GUI_EXPORT Q_DECL_EXPORT
#else
#define OMBRIN_GUI_EXPORT Q_DECL_IMPORT
#endif

#ifdef OMBRIN_AUTOTEST
#define OMBRIN_AUTOTEST_EXPORT OMBRIN_GUI_EXPORT
#define OMBRIN_CORE_AUTOTEST_EXPORT OMBRIN_CORE_EXPORT
#else
#define OMBRIN_AUTOTEST_EXPORT
#define OMBRIN_CORE_AUTOTEST_EXPORT
#endif

/// The library's namespace.
namespace ombrin {}
