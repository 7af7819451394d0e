#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QStatusBar>

namespace ombrin {

/// A status bar on a grey gradient.
///
/// Behaves as QStatusBar; messages and widgets lie on a vertical gradient that is darkest in the
/// top row. Skinned windows and dialogs create one for themselves.
///
/// \code
/// window->statusBar()->showMessage(tr("Connected"), 1000); // milliseconds
/// \endcode
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit OmStatusBar(QWidget *parent = nullptr);
    ~OmStatusBar() override;

protected:
    void paintEvent(QPaintEvent *e) override;
};

} // namespace ombrin
