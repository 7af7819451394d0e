#pragma once

#include "WidgetEntry.h"

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace ombrin::designer {

/// One class of the library as the form editor sees it.
class DesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit DesignerWidget(const WidgetEntry &entry, QObject *parent);
    ~DesignerWidget() override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    QString domXml() const override;

    bool isContainer() const override;
    bool isInitialized() const override;
    /// Only the form editor calls it: who loads forms at run time gets widgets as they are.
    void initialize(QDesignerFormEditorInterface *core) override;
    QWidget *createWidget(QWidget *parent) override;

private:
    QString simpleName() const;
    QString title() const;

    WidgetEntry m_entry;
    bool m_isInEditor = false;
};

} // namespace ombrin::designer
