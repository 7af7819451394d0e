#include "support/TestCase.h"

#include <QtCore/QXmlStreamReader>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyle>

#include <ombrin/OmContactCardList.h>
#include <ombrin/OmWindow.h>

namespace {

/// What Designer's main window puts together.
class Editor
{
public:
    Editor()
    {
        QDesignerComponents::initializeResources();
        m_core = QDesignerComponents::createFormEditor(m_owner.get());
        m_core->setTopLevel(m_window.get());
        m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, m_window.get()));
        m_core->setPropertyEditor(
                QDesignerComponents::createPropertyEditor(m_core, m_window.get()));
        m_core->setObjectInspector(
                QDesignerComponents::createObjectInspector(m_core, m_window.get()));
        m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core, m_window.get()));
        new QDesignerIntegration(m_core, m_core);
        QDesignerComponents::initializePlugins(m_core);
        m_core->widgetBox()->setFileName(
                QStringLiteral(":/qt-project.org/widgetbox/widgetbox.xml"));
        m_core->widgetBox()->load();
    }

    ~Editor()
    {
        m_window.reset();
        m_owner.reset(); // the windows use it to the last
        // Designer, which lives as long as its program, leaves a menu.
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *const widget : widgets) {
            if (qobject_cast<QMenu *>(widget) && !widget->parent())
                delete widget;
        }
    }

    /// The category of our widgets; empty if there is none.
    QDesignerWidgetBoxInterface::Category category() const
    {
        const QDesignerWidgetBoxInterface *const box = m_core->widgetBox();
        for (int index = 0; index < box->categoryCount(); ++index) {
            if (box->category(index).name() == QLatin1String("Ombrin"))
                return box->category(index);
        }
        return QDesignerWidgetBoxInterface::Category();
    }

    /// Opens \a contents; null if they cannot be opened.
    QDesignerFormWindowInterface *open(const QString &contents)
    {
        auto *const form = m_core->formWindowManager()->createFormWindow(m_window.get());
        return form->setContents(contents) ? form : nullptr;
    }

private:
    std::unique_ptr<QObject> m_owner = std::make_unique<QObject>();
    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    QDesignerFormEditorInterface *m_core;
};

/// "object.property" and the value's text of all properties in \a form, in their order.
QStringList properties(const QString &form)
{
    static const QRegularExpression whiteSpace(QStringLiteral("\\s"));
    QStringList found;
    QStringList objects;
    QXmlStreamReader xml(form);
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        const bool isObject = xml.name() == QLatin1String("widget");
        if (token == QXmlStreamReader::EndElement && isObject)
            objects.removeLast();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.attributes().value(QLatin1String("name")).toString();
        if (isObject) {
            objects.append(name);
        } else if (xml.name() == QLatin1String("property") && !objects.isEmpty()) {
            QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            found.append(
                    QStringLiteral("%1.%2=%3").arg(objects.last(), name, text.remove(whiteSpace)));
        }
    }
    return found;
}

QString formWith(const QString &widgets)
{
    return QStringLiteral("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" "
                          "name=\"Form\">%1</widget></ui>")
            .arg(widgets);
}

} // namespace

/// Whether Qt Designer itself offers, shows and saves the library's widgets.
class tst_DesignerEditor : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void widgetBoxOffersThem();
    void everyWidgetCanBeDropped();
    void formsAreSavedAsTheyWere();
};

void tst_DesignerEditor::initTestCase()
{
    // Ours and no others, whatever is installed.
    QCoreApplication::setLibraryPaths({QCoreApplication::applicationDirPath()});
}

void tst_DesignerEditor::widgetBoxOffersThem()
{
    const QPalette palette = QApplication::palette();
    const QPointer<QStyle> style = QApplication::style();
    const Editor editor;
    const auto category = editor.category();
    QCOMPARE(category.widgetCount(), 28);
    QCOMPARE(category.widget(3).name(), QStringLiteral("Contact Card List"));

    // The pictures are there, and the editor looks as before.
    QVERIFY(!QPixmap(QStringLiteral(":/chat-16")).isNull());
    QCOMPARE(QApplication::palette(), palette);
    QCOMPARE(QApplication::style(), style.data());
    QVERIFY(qApp->styleSheet().isEmpty());
}

void tst_DesignerEditor::everyWidgetCanBeDropped()
{
    Editor editor;
    const auto category = editor.category();
    QVERIFY(category.widgetCount() > 0);
    for (int index = 0; index < category.widgetCount(); ++index) {
        // A drop puts the widget of this description into the form.
        QString xml = category.widget(index).domXml();
        xml = xml.mid(xml.indexOf(QStringLiteral("<widget")));
        xml.truncate(xml.lastIndexOf(QStringLiteral("</widget>")) + 9);
        auto *const form = editor.open(formWith(xml));
        QVERIFY2(form, qPrintable(category.widget(index).name()));
        auto *const widget =
                form->mainContainer()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY2(widget && !widget->isWindow(), qPrintable(category.widget(index).name()));

        // What the description sets, and nothing else, is saved again.
        QStringList before = properties(xml);
        QStringList after = properties(form->contents()).filter(widget->objectName());
        after = after.filter(QRegularExpression(QStringLiteral("^") + widget->objectName()));
        before.sort();
        after.sort();
        QCOMPARE(after, before.filter(widget->objectName()));
        QVERIFY(form->contents().count(QStringLiteral("<widget"))
                == xml.count(QStringLiteral("<widget")) + 1);
    }
}

void tst_DesignerEditor::formsAreSavedAsTheyWere()
{
    Editor editor;
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/testdata/allwidgets.ui"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString contents = QString::fromUtf8(file.readAll());
    auto *const form = editor.open(contents);
    QVERIFY(form);
    auto *const window = qobject_cast<ombrin::OmWindow *>(form->mainContainer());
    QVERIFY(window);
    QCOMPARE(window->windowTitleOnly(), QStringLiteral("All widgets"));
    const QStringList managed = ombrin::test::words("tabWidget firstChild secondChild popupChild");
    for (const QString &name : managed)
        QVERIFY2(form->isManaged(window->findChild<QWidget *>(name)), qPrintable(name));

    const QString saved = form->contents();
    const QStringList after = properties(saved);
    const QStringList before = properties(contents);
    for (const QString &property : before)
        QVERIFY2(after.contains(property), qPrintable(property));
    // A text that came before the hint would be lost.
    QVERIFY(after.indexOf(QStringLiteral("firstChild.text=Ada"))
            > after.indexOf(QStringLiteral("firstChild.noFocusMessage=Name")));
    // Without this mark uic would call a setter that the class does not have.
    const QStringList marked = ombrin::test::words("elide link noticeInput generalApp retracted "
                                                   "addContactButton addButtonVisible "
                                                   "closeTabButton");
    for (const QString &name : marked) {
        const QString property = QStringLiteral("<property name=\"%1\" stdset=\"0\">").arg(name);
        QVERIFY2(saved.contains(property), qPrintable(name));
    }
    // Examples are shown, but are no part of the form.
    auto *const list = window->findChild<ombrin::OmContactCardList *>();
    QVERIFY(list->size() > 0 && !form->isManaged(list->card(0)));
    QVERIFY(!saved.contains(QStringLiteral("contactBig")));
}

OMBRIN_TEST_MAIN(tst_DesignerEditor)
#include "tst_designereditor.moc"
