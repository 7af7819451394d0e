#include "skin/LightGround.h"

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace ombrin {

namespace {

constexpr int kLightestText = 150; // of 255, as the eye sees it

void blackenLightText(QWidget *widget)
{
    QPalette palette = widget->palette();
    if (qGray(palette.color(QPalette::Active, QPalette::WindowText).rgb()) <= kLightestText)
        return;
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::darkGray);
    widget->setPalette(palette);
}

class TextKeeper : public QObject
{
public:
    explicit TextKeeper(QWidget *widget)
        : QObject(widget)
    {
        blackenLightText(widget);
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const widget = static_cast<QWidget *>(watched);
        // A style sheet may have changed the ground as well.
        if (event->type() == QEvent::PaletteChange && !widget->testAttribute(Qt::WA_StyleSheet))
            blackenLightText(widget);
        return false;
    }
};

} // namespace

void keepTextReadable(QWidget *widget)
{
    new TextKeeper(widget);
}

} // namespace ombrin
