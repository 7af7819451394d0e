#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QToolButton>

namespace ombrin {

/// A tool button that shows its tool tip in a balloon, by the rules of OmPushButton.
///
/// \code
/// auto *button = new ombrin::OmToolButton(this);
/// button->setIcon(QIcon(QStringLiteral(":/phone-16")));
/// button->setText(tr("Call")); // also the name for assistive technology
/// button->setToolTip(tr("Call Ada on her mobile phone"));
/// \endcode
///
/// In all else it is a QToolButton.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmToolButton : public QToolButton
{
    Q_OBJECT

public:
    explicit OmToolButton(QWidget *parent = nullptr);
    ~OmToolButton() override;

protected:
    bool event(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
};

} // namespace ombrin
