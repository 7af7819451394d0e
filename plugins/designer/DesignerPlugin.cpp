#include "DesignerPlugin.h"

#include "DesignerWidget.h"

#include <QtCore/QMetaType>
#include <QtWidgets/QTabBar>

namespace ombrin::designer {

DesignerPlugin::DesignerPlugin(QObject *parent)
    : QObject(parent)
{
    // Qt 5 declares a property of tab bars with a type that nobody has registered, and prints a
    // warning when the editor reads it.
    qRegisterMetaType<QTabBar::SelectionBehavior>("SelectionBehavior");
    for (const WidgetEntry &entry : widgetEntries())
        m_widgets.append(new DesignerWidget(entry, this));
}

DesignerPlugin::~DesignerPlugin() = default;

QList<QDesignerCustomWidgetInterface *> DesignerPlugin::customWidgets() const
{
    return m_widgets;
}

} // namespace ombrin::designer
