#pragma once

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace ombrin::designer {

/// The plug-in through which Qt Designer, and QUiLoader at run time, know the library's widgets.
class DesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerPlugin(QObject *parent = nullptr);
    ~DesignerPlugin() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

} // namespace ombrin::designer
