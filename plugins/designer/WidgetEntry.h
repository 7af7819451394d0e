#pragma once

#include <QtCore/QList>
#include <QtCore/QSize>

class QWidget;
struct QMetaObject;

namespace ombrin::designer {

/// What the form editor's widget box has to know of one of the library's classes.
struct WidgetEntry
{
    const QMetaObject *metaObject;
    QWidget *(*create)(QWidget *parent);
    bool isContainer;
    /// Of a new widget.
    QSize size;
    /// Tool tip and What's This text in the widget box, not yet translated.
    const char *toolTip;
    const char *whatsThis;
    /// What a new widget holds, as elements of a .ui file.
    const char *contents;
    /// Does to a widget on a form what else only a running program does, so that one sees what it
    /// will look like. Null where nothing is to be shown, or where \a contents says it.
    void (*prepareOnForm)(QWidget *widget);
};

/// All classes that can be put on a form, in the order of their names in the widget box.
const QList<WidgetEntry> &widgetEntries();

} // namespace ombrin::designer
