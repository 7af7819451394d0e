#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QProxyStyle>

namespace ombrin {

/// The style of the whole application: Plastique (Fusion where Qt has no Plastique) with a flat,
/// light-grey frame, an orange outline under the mouse, green check marks, menu bars and tool bars
/// without spacing, and scroll bars and combo boxes drawn from the skin's pictures.
///
/// OmSkin::init() installs it. A host that wants the style without the rest of the skin does
/// \code
/// QApplication::setStyle(new ombrin::OmStyle2);
/// \endcode
/// before or after it makes the application; Qt takes ownership of the style. It can also be given
/// to single widgets with QWidget::setStyle(), which does not.
///
/// Colours come from the palette of what is drawn, except the fixed ones: frames are
/// (189, 189, 189), of disabled line edits (203, 203, 203), under the mouse (255, 193, 48); check
/// marks are \#21a121, disabled \#90d090; the title of an active window within a window is white on
/// Plastique. What is not mentioned here looks and measures as in the
/// style below.
///
/// Three classes are known to the style by their names:
/// - a scroll bar of a host's class \c RelativeScrollBar has a slider of at least 50 pixels with
///   an arrow in each half;
/// - ombrin::OmSearchField keeps 18 pixels free for its icons on either side of its text;
/// - ombrin::OmIconComboBox opens a list 100 pixels wider than itself.
///
/// In a right-to-left layout the arrows of a lying scroll bar still point outward. Line edits and
/// scroll bars are made to repaint when the mouse enters or leaves them (Qt::WA_Hover).
///
/// A call without an option, without a painter or with an option of the wrong type draws nothing,
/// and answers an empty rectangle or the size it was given. Widgets may always be null. A skin
/// picture that is missing leaves its place as it was.
///
/// \ingroup skin
class OMBRIN_GUI_EXPORT OmStyle2 : public QProxyStyle
{
    Q_OBJECT

public:
    OmStyle2();
    ~OmStyle2() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

private:
    void drawLineEditPanel(const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const;
    void drawToolButtonPanel(const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const;
    void drawBranch(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawTab(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawTabShape(const QStyleOption *option, QPainter *painter, const QWidget *widget) const;
    void drawMenuBarItem(const QStyleOption *option, QPainter *painter,
                         const QWidget *widget) const;
    void drawScrollBarPage(ControlElement element, const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const;
    void drawScrollBarSlider(const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const;
    void drawScrollBar(const QStyleOptionComplex *option, QPainter *painter,
                       const QWidget *widget) const;
    void drawComboBox(const QStyleOptionComplex *option, QPainter *painter,
                      const QWidget *widget) const;
    void drawTitleBar(const QStyleOptionComplex *option, QPainter *painter,
                      const QWidget *widget) const;
};

} // namespace ombrin
