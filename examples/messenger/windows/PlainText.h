#pragma once

#include <QtCore/QString>

class QLabel;

namespace ombrin {
class OmLabel;
}

namespace messenger {

/// \file
/// What other people write must never turn into formatting.

/// What shows \a text as it is, with its line breaks, where rich text is recognised: in tool tips
/// and message boxes. Empty for an empty text.
QString asRichText(const QString &text);

/// Has \a label begin where its layout does, whichever way its text runs.
void beginAtEdge(QLabel *label);

/// A label that shows its text as it is, shortened where it does not fit.
ombrin::OmLabel *plainLabel(const QString &text = QString());
ombrin::OmLabel *plainBoldLabel(const QString &text = QString());

} // namespace messenger
