#include "windows/TitleBar.h"

#include "skin/SkinPixmap.h"
#include "windows/FramePainter.h"

#include <ombrin/OmImageButton.h>

#include <QAction>
#include <QtCore/QCoreApplication>
#include <QtGui/QBitmap>
#include <QtGui/QCursor>
#include <QtWidgets/QMenu>

namespace ombrin {

namespace {

constexpr int kButtonTop = 5;

struct ButtonSpec
{
    const char *name; // of its pictures
    const char *toolTip;
    int rightDistance; // from the window's right edge to the button's left one
};

// In the order minimise, maximise, restore, close.
constexpr ButtonSpec kButtons[] = {
        {"minimize", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Minimize"), 79},
        {"maximize", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Maximize"), 54},
        {"restore", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Restore"), 54},
        {"close", QT_TRANSLATE_NOOP("ombrin::OmWindow", "Close"), 29},
};

constexpr const char *kOpacityTitle = QT_TRANSLATE_NOOP("ombrin::OmWindow", "Opacity");

constexpr const char *kOpacityTexts[] = {
        QT_TRANSLATE_NOOP("ombrin::OmWindow", "100%"), QT_TRANSLATE_NOOP("ombrin::OmWindow", "80%"),
        QT_TRANSLATE_NOOP("ombrin::OmWindow", "60%"),  QT_TRANSLATE_NOOP("ombrin::OmWindow", "50%"),
        QT_TRANSLATE_NOOP("ombrin::OmWindow", "40%"),  QT_TRANSLATE_NOOP("ombrin::OmWindow", "20%"),
};
static_assert(std::size(kOpacityTexts) == std::tuple_size_v<TitleBar::OpacitySlots>);

// The same texts in the dialog's context, for translators.
[[maybe_unused]] constexpr const char *kDialogTexts[] = {
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Minimize"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Maximize"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Restore"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Close"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "Opacity"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "100%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "80%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "60%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "50%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "40%"),
        QT_TRANSLATE_NOOP("ombrin::OmDialog2", "20%"),
};

QString buttonPicture(const char *name, const char *state, bool active)
{
    return QStringLiteral(":/%1_%2_%3")
            .arg(QLatin1String(name), QLatin1String(state),
                 active ? QLatin1String("active") : QLatin1String("inactive"));
}

} // namespace

TitleBar::TitleBar(QWidget *window, const char *translationContext)
    : m_window(window)
    , m_translationContext(translationContext)
{}

QString TitleBar::translated(const char *text) const
{
    return QCoreApplication::translate(m_translationContext, text);
}

void TitleBar::createButtons()
{
    for (int index = 0; index < ButtonCount; ++index)
        createButton(static_cast<ButtonIndex>(index));
    m_buttons[Restore]->close();
    translate();
}

void TitleBar::createButton(ButtonIndex index)
{
    const QPixmap picture = skinPixmap(buttonPicture(kButtons[index].name, "up", true), 1);
    auto *button = new OmImageButton(m_window);
    button->setFixedSize(picture.size());
    button->setMask(picture.mask());
    m_buttons[index] = button;

    switch (index) {
    case Minimize:
        QObject::connect(button, &OmImageButton::clicked, m_window, &QWidget::showMinimized);
        break;
    case Maximize:
        QObject::connect(button, &OmImageButton::clicked, m_window, &QWidget::showMaximized);
        break;
    case Restore:
        QObject::connect(button, &OmImageButton::clicked, m_window, &QWidget::showNormal);
        break;
    case Close:
        QObject::connect(button, &OmImageButton::clicked, m_window, &QWidget::close);
        break;
    case ButtonCount:
        break;
    }
}

void TitleBar::translate()
{
    for (int index = 0; index < ButtonCount; ++index) {
        if (!m_buttons[index])
            continue;
        const QString text = translated(kButtons[index].toolTip);
        m_buttons[index]->setToolTip(text);
        m_buttons[index]->setAccessibleName(text);
    }
}

void TitleBar::setMaximizingEnabled(bool enabled) const
{
    for (const ButtonIndex index : {Maximize, Restore}) {
        if (m_buttons[index])
            m_buttons[index]->setEnabled(enabled);
    }
}

void TitleBar::placeButtons() const
{
    for (int index = 0; index < ButtonCount; ++index) {
        if (m_buttons[index])
            m_buttons[index]->move(m_window->width() - kButtons[index].rightDistance, kButtonTop);
    }
}

void TitleBar::followDensity(bool active)
{
    if (m_hasPictures)
        setPictures(active);
}

void TitleBar::setPictures(bool active)
{
    m_hasPictures = true;
    const qreal density = m_window->devicePixelRatioF();
    for (int index = 0; index < ButtonCount; ++index) {
        OmImageButton *button = m_buttons[index];
        if (!button)
            continue;
        const char *name = kButtons[index].name;
        button->setPixmapUp(skinPixmap(buttonPicture(name, "up", active), density));
        button->setPixmapDown(skinPixmap(buttonPicture(name, "down", active), density));
        button->setPixmapHovered(skinPixmap(buttonPicture(name, "hover", active), density));
        button->setPixmapDisabled(skinPixmap(buttonPicture(name, "disabled", active), density));
    }
}

void TitleBar::checkState() const
{
    const bool maximized = m_window->windowState().testFlag(Qt::WindowMaximized);
    if (m_buttons[Maximize])
        m_buttons[Maximize]->setVisible(!maximized);
    if (m_buttons[Restore])
        m_buttons[Restore]->setVisible(maximized);
}

void TitleBar::popupHeaderMenu(const QPoint &position, const OpacitySlots &opacitySlots) const
{
    if (position.y() > frame_metrics::kLastTitleBandRow)
        return;
    auto *menu = new QMenu(m_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QMenu *opacities = menu->addMenu(translated(kOpacityTitle));
    for (std::size_t index = 0; index < opacitySlots.size(); ++index) {
        const QAction *action = opacities->addAction(translated(kOpacityTexts[index]));
        QObject::connect(action, &QAction::triggered, m_window, opacitySlots[index]);
    }
    menu->popup(QCursor::pos());
}

} // namespace ombrin
