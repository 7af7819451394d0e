#include "skin/LightGround.h"

#include <QtCore/QChildEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

namespace ombrin {

namespace {

constexpr int kLightestText = 150; // of 255, as the eye sees it

QColor textColor(const QPalette &palette)
{
    return palette.color(QPalette::Active, QPalette::WindowText);
}

bool hasColorOfApplication(const QWidget *widget)
{
    return textColor(widget->palette()) == textColor(QApplication::palette(widget));
}

void blackenText(QWidget *widget)
{
    QPalette palette = widget->palette();
    blackenLightText(&palette, QPalette::WindowText);
    if (textColor(palette) != textColor(widget->palette()))
        widget->setPalette(palette);
}

class TextKeeper : public QObject
{
public:
    explicit TextKeeper(QWidget *widget)
        : QObject(widget)
    {
        blackenText(widget);
        widget->installEventFilter(this);
        const auto labels = widget->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        for (QLabel *label : labels)
            watchLabel(label);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::PaletteChange:
        case QEvent::StyleChange:
            refresh(static_cast<QWidget *>(watched));
            break;
        case QEvent::ChildPolished:
            if (watched == parent())
                watchLabel(qobject_cast<QLabel *>(static_cast<QChildEvent *>(event)->child()));
            break;
        default:
            break;
        }
        return false;
    }

private:
    // With a style sheet on the application, labels inherit no colours from the widget.
    void watchLabel(QLabel *label)
    {
        if (!label)
            return;
        label->installEventFilter(this);
        if (label->testAttribute(Qt::WA_WState_Polished))
            refresh(label);
    }

    // What is not the application's colour is the host's choice, or that of a style sheet, which
    // may have changed the ground as well.
    void refresh(QWidget *widget)
    {
        const bool isLabel = widget != parent();
        const bool mayInherit = !isLabel && !widget->testAttribute(Qt::WA_StyleSheet);
        if (isLabel && widget->parent() != parent())
            widget->removeEventFilter(this);
        else if (mayInherit || hasColorOfApplication(widget))
            blackenText(widget);
    }
};

} // namespace

void blackenLightText(QPalette *palette, QPalette::ColorRole role)
{
    if (qGray(palette->color(QPalette::Active, role).rgb()) <= kLightestText)
        return;
    palette->setColor(role, Qt::black);
    palette->setColor(QPalette::Disabled, role, Qt::darkGray);
}

void keepTextReadable(QWidget *widget)
{
    new TextKeeper(widget);
}

} // namespace ombrin
