#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>

/// A vertical guide of an OmScribbledZebraView, on which items hang.
///
/// \code
/// auto *labels = new OmScribbledZebraPole(10, true, nullptr);  // 10 pixels from the left edge
/// auto *numbers = new OmScribbledZebraPole(10, false, nullptr); // 10 pixels from the right edge
/// view->poles() << labels << numbers;
/// \endcode
///
/// The list that a pole is added to owns it. A pole may be deleted at any time; it then leaves its
/// list.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraPole : public QObject
{
    Q_OBJECT

public:
    /// \a indent is a distance in pixels, of any sign, from the left edge of the view if
    /// \a isAlignedLeftOrRight is true, else from its right edge.
    OmScribbledZebraPole(int indent, bool isAlignedLeftOrRight, QObject *parent);
    ~OmScribbledZebraPole() override;

    /// The distance from the edge in pixels.
    int indent() const;
    void setIndent(int indent);

    /// Whether the indent counts from the left edge, else from the right edge. This is not mirrored
    /// in right-to-left layouts.
    bool isAlignedLeftOrRight() const;
    void setIsAlignedLeftOrRight(bool isAlignedLeftOrRight);

Q_SIGNALS:
    /// One of the values was changed.
    void signalOnChanged();

private:
    int m_indent;
    bool m_isAlignedLeftOrRight;
};
