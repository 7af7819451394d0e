#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QPushButton>

namespace ombrin {

/// A push button that shows its tool tip in a balloon.
///
/// The balloon points at the middle of the bottom edge and goes after two seconds, or as soon as
/// the mouse leaves the button; whichever balloon is active then goes. Nothing is shown for a
/// disabled button or while another balloon is up. The tool tip is shown as plain text. A button
/// without a tool tip shows no balloon; the tool tip of its parent appears, as is usual in Qt.
///
/// \code
/// auto *button = new ombrin::OmPushButton(this);
/// button->setText(tr("&Call"));
/// button->setToolTip(tr("Call Ada on her mobile phone"));
/// \endcode
///
/// In all else it is a QPushButton. To assistive technology the tool tip is the description.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit OmPushButton(QWidget *parent = nullptr);
    ~OmPushButton() override;

protected:
    bool event(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
};

} // namespace ombrin
