#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtWidgets/QFrame>

class QLabel;

namespace ombrin {

/// One row of a menu that is put together from widgets: an icon and a text on a light panel that
/// darkens under the mouse.
///
/// \code
/// auto *item = new ombrin::OmMenuItem(this);
/// item->setIcon(QStringLiteral(":/chat-16"));
/// item->setText(tr("Chat with Contact"));
/// connect(item, &ombrin::OmMenuItem::clicked, this, &Menu::startChat);
/// layout->addWidget(item);
/// \endcode
///
/// The row is 24 pixels high; icons of 16 pixels suit it. A press of any mouse button clicks it,
/// and so do Space, Return and Enter while it has the focus, which it takes once the host gives it
/// a focus policy. The item may be deleted in a slot of its signal.
///
/// Assistive technology sees a menu item named by accessibleName() or else by its text.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmMenuItem : public QFrame
{
    Q_OBJECT

    /// Shown as plain text.
    Q_PROPERTY(QString text READ text WRITE setText)
    /// The resource path of the icon, for example ":/chat-16". A picture that is missing is not
    /// shown.
    Q_PROPERTY(QString icon READ icon WRITE setIcon)

public:
    explicit OmMenuItem(QWidget *parent = nullptr);
    ~OmMenuItem() override;

    void setText(const QString &text);
    QString text() const;
    void setIcon(const QString &name);
    QString icon() const;

Q_SIGNALS:
    /// A mouse button was pressed on the item, or a key while it has the focus.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_iconLabel;
    QLabel *m_textLabel;
    QString m_text;
    QString m_icon;
};

} // namespace ombrin
