#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QFrame>

namespace ombrin {

/// A plain frame that hosts fill and show near the tray.
///
/// It adds nothing to QFrame but a class of its own, which style sheets and translations can name.
///
/// \code
/// auto *popup = new ombrin::OmTrayPopup(nullptr, Qt::Popup);
/// popup->setAttribute(Qt::WA_DeleteOnClose);
/// auto *layout = new QVBoxLayout(popup);
/// layout->addWidget(new QLabel(tr("Ada is online")));
/// popup->show();
/// \endcode
///
/// A parent owns it, as any QFrame; without one the host does. It neither places nor closes itself.
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
