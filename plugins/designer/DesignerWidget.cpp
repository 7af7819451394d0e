#include "DesignerWidget.h"

#include <ombrin/OmSkin.h>
#include <ombrin/OmTranslation.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>
#include <QtGui/QIcon>
#include <QtWidgets/QWidget>

namespace ombrin::designer {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("ombrin::DesignerPlugin", text);
}

// The class of Qt that a form's other tools, such as uic, are to take ours for.
QString qtBaseOf(const QMetaObject *metaObject)
{
    while (metaObject->className()[0] != 'Q')
        metaObject = metaObject->superClass();
    return QLatin1String(metaObject->className());
}

// The editor keeps its own palette and style: they are what its forms are shown in. Nor does one
// that speaks English begin to speak the user's language in part.
void joinEditor()
{
    static bool joined = false;
    if (joined)
        return;
    joined = true;
    OmSkin::registerPictures();
    constexpr const char *kText = "&Copy";
    if (QCoreApplication::translate("QWidgetTextControl", kText) != QLatin1String(kText))
        OmTranslation::load();
}

} // namespace

DesignerWidget::DesignerWidget(const WidgetEntry &entry, QObject *parent)
    : QObject(parent)
    , m_entry(entry)
{}

DesignerWidget::~DesignerWidget() = default;

QString DesignerWidget::name() const
{
    return QLatin1String(m_entry.metaObject->className());
}

// Without its namespace.
QString DesignerWidget::simpleName() const
{
    return name().section(QStringLiteral("::"), -1);
}

// "OmTabWidget" stands in the widget box as "Tab Widget".
QString DesignerWidget::title() const
{
    static const QRegularExpression wordStart(QStringLiteral("(?<=[a-z])(?=[A-Z])"));
    return simpleName().mid(2).replace(wordStart, QStringLiteral(" "));
}

QString DesignerWidget::group() const
{
    return QStringLiteral("Ombrin");
}

QString DesignerWidget::toolTip() const
{
    return translated(m_entry.toolTip);
}

QString DesignerWidget::whatsThis() const
{
    return translated(m_entry.whatsThis);
}

QString DesignerWidget::includeFile() const
{
    return QStringLiteral("<ombrin/%1.h>").arg(simpleName());
}

QIcon DesignerWidget::icon() const
{
    return QIcon(QStringLiteral(":/ombrin/designer/%1.png").arg(simpleName()));
}

QString DesignerWidget::domXml() const
{
    // "OmTabWidget" makes objects called "tabWidget".
    QString objectName = simpleName().mid(2);
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral("<ui language=\"c++\" displayname=\"%1\">"
                          "<widget class=\"%2\" name=\"%3\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%4</width><height>%5</height></rect></property>"
                          "%6</widget>"
                          "<customwidgets><customwidget><class>%2</class><extends>%7</extends>"
                          "</customwidget></customwidgets></ui>")
            .arg(title(), name(), objectName, QString::number(m_entry.size.width()),
                 QString::number(m_entry.size.height()), QString::fromUtf8(m_entry.contents),
                 qtBaseOf(m_entry.metaObject));
}

bool DesignerWidget::isContainer() const
{
    return m_entry.isContainer;
}

bool DesignerWidget::isInitialized() const
{
    return m_isInEditor;
}

void DesignerWidget::initialize(QDesignerFormEditorInterface *core)
{
    Q_UNUSED(core)
    m_isInEditor = true;
    joinEditor();
}

QWidget *DesignerWidget::createWidget(QWidget *parent)
{
    QWidget *const widget = m_entry.create(parent);
    if (!m_isInEditor)
        return widget;
    // A dialog on a form is part of the form, not a window of its own.
    if (parent && widget->isWindow())
        widget->setWindowFlags(Qt::Widget);
    if (m_entry.prepareOnForm)
        m_entry.prepareOnForm(widget);
    return widget;
}

} // namespace ombrin::designer
