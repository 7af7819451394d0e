#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QFrame>

namespace ombrin {

/// A plain frame that hosts fill and show near the tray.
///
/// It adds nothing to QFrame but a class of its own, which style sheets and translations can name.
///
/// \ingroup effects
class OMBRIN_GUI_EXPORT OmTrayPopup : public QFrame
{
    Q_OBJECT

public:
    /// The parameters are those of QFrame.
    explicit OmTrayPopup(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());
    ~OmTrayPopup() override;
};

} // namespace ombrin
