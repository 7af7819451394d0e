#include "dialogs/WizardWidgets.h"

#include "skin/LightGround.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>

#include <algorithm>

namespace ombrin {

namespace {

QPixmap pixmapOf(const QLabel *label)
{
    return label->pixmap(Qt::ReturnByValue);
}

bool takesFocus(const QWidget *widget)
{
    return widget->focusPolicy() != Qt::NoFocus;
}

/// The last one of \a widget and the widgets on it that is in the tab order, or null.
QWidget *lastInTabOrder(QWidget *widget)
{
    QWidget *last = takesFocus(widget) ? widget : nullptr;
    for (QWidget *next = widget->nextInFocusChain(); next != widget;
         next = next->nextInFocusChain()) {
        if (takesFocus(next) && widget->isAncestorOf(next))
            last = next;
    }
    return last;
}

} // namespace

void setWhiteBackground(QWidget *widget)
{
    QPalette palette = widget->palette();
    palette.setBrush(QPalette::All, widget->backgroundRole(),
                     QBrush(QColor(255, 255, 255, 255), Qt::SolidPattern));
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
    keepTextReadable(widget);
}

void refreshPixmap(QLabel *label, const QPixmap &pixmap)
{
    if (pixmapOf(label).cacheKey() != pixmap.cacheKey())
        label->setPixmap(pixmap);
}

QSize pixmapSize(const QLabel *label)
{
    const QPixmap pixmap = pixmapOf(label);
    return pixmap.isNull() ? QSize() : (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
}

void releasePage(QWidget *page)
{
    const QPointer<QWidget> guard(page);
    page->hide();
    if (guard)
        guard->setParent(nullptr);
}

void settleLayouts(QWidget *window)
{
    // From the inside out: an inner layout sets the size limits that an outer one goes by.
    const auto layouts = window->findChildren<QLayout *>();
    std::for_each(layouts.rbegin(), layouts.rend(), [](QLayout *layout) { layout->activate(); });
}

void refreshPageTabOrder(QWidget *page, std::initializer_list<QWidget *> buttons)
{
    QWidget *previous = page ? lastInTabOrder(page) : nullptr;
    for (QWidget *button : buttons) {
        if (!button || button->isHidden())
            continue;
        if (previous && previous->window() == button->window()
            && previous->nextInFocusChain() != button)
            QWidget::setTabOrder(previous, button);
        previous = button;
    }
}

} // namespace ombrin
