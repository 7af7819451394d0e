#include "support/Files.h"
#include "support/TestCase.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerWidgetBoxInterface>

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
        m_core->widgetBox()->setFileName(":/qt-project.org/widgetbox/widgetbox.xml"_q);
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
            if (box->category(index).name() == "Ombrin"_q)
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
    static const QRegularExpression whiteSpace("\\s"_q);
    QStringList found;
    QStringList objects;
    QXmlStreamReader xml(form);
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        const bool isObject = xml.name() == "widget"_q;
        if (token == QXmlStreamReader::EndElement && isObject)
            objects.removeLast();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.attributes().value("name"_q).toString();
        if (isObject) {
            objects.append(name);
        } else if (xml.name() == "property"_q && !objects.isEmpty()) {
            QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            found.append("%1.%2=%3"_q.arg(objects.last(), name, text.remove(whiteSpace)));
        }
    }
    return found;
}

QString formWith(const QString &widgets)
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" "
           "name=\"Form\">%1</widget></ui>"_q.arg(widgets);
}

} // namespace

/// Whether Qt Designer itself offers, shows and saves the library's widgets.
class tst_DesignerEditor : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Ours and no others, whatever is installed.
        QCoreApplication::setLibraryPaths({QCoreApplication::applicationDirPath()});
    }

    void widgetBoxOffersThem()
    {
        const QPalette palette = QApplication::palette();
        const QPointer<QStyle> style = QApplication::style();
        const Editor editor;
        const auto category = editor.category();
        QCOMPARE(category.widgetCount(), 28);
        QCOMPARE(category.widget(3).name(), "Contact Card List"_q);

        // The pictures are there, and the editor looks as before.
        QVERIFY(!QPixmap(":/chat-16"_q).isNull());
        QCOMPARE(QApplication::palette(), palette);
        QCOMPARE(QApplication::style(), style.data());
        QVERIFY(qApp->styleSheet().isEmpty());
    }

    void everyWidgetCanBeDropped()
    {
        Editor editor;
        const auto category = editor.category();
        QVERIFY(category.widgetCount() > 0);
        for (int index = 0; index < category.widgetCount(); ++index) {
            // A drop puts the widget of this description into the form.
            QString xml = category.widget(index).domXml();
            xml = xml.mid(xml.indexOf("<widget"_q));
            xml.truncate(xml.lastIndexOf("</widget>"_q) + 9);
            auto *const form = editor.open(formWith(xml));
            QVERIFY2(form, qPrintable(category.widget(index).name()));
            auto *const widget = form->mainContainer()->findChild<QWidget *>(
                    QString(), Qt::FindDirectChildrenOnly);
            QVERIFY2(widget && !widget->isWindow(), qPrintable(category.widget(index).name()));

            // What the description sets, and nothing else, is saved again.
            QStringList before = properties(xml);
            QStringList after = properties(form->contents()).filter(widget->objectName());
            after = after.filter(QRegularExpression("^"_q + widget->objectName()));
            before.sort();
            after.sort();
            QCOMPARE(after, before.filter(widget->objectName()));
            QVERIFY(form->contents().count("<widget"_q) == xml.count("<widget"_q) + 1);
        }
    }

    void formsAreSavedAsTheyWere()
    {
        Editor editor;
        const QString contents = QString::fromUtf8(ombrin::test::contentsOf(
                QCoreApplication::applicationDirPath() + "/testdata/allwidgets.ui"_q));
        auto *const form = editor.open(contents);
        QVERIFY(form);
        auto *const window = qobject_cast<ombrin::OmWindow *>(form->mainContainer());
        QVERIFY(window);
        QCOMPARE(window->windowTitleOnly(), "All widgets"_q);
        const QStringList managed =
                ombrin::test::words("tabWidget firstChild secondChild popupChild");
        for (const QString &name : managed)
            QVERIFY2(form->isManaged(window->findChild<QWidget *>(name)), qPrintable(name));

        const QString saved = form->contents();
        const QStringList after = properties(saved);
        const QStringList before = properties(contents);
        for (const QString &property : before)
            QVERIFY2(after.contains(property), qPrintable(property));
        // A text that came before the hint would be lost.
        QVERIFY(after.indexOf("firstChild.text=Ada"_q)
                > after.indexOf("firstChild.noFocusMessage=Name"_q));
        // Without this mark uic would call a setter that the class does not have.
        const QStringList marked =
                ombrin::test::words("elide link noticeInput generalApp retracted "
                                    "addContactButton addButtonVisible "
                                    "closeTabButton");
        for (const QString &name : marked) {
            const QString property = "<property name=\"%1\" stdset=\"0\">"_q.arg(name);
            QVERIFY2(saved.contains(property), qPrintable(name));
        }
        // Examples are shown, but are no part of the form.
        auto *const list = window->findChild<ombrin::OmContactCardList *>();
        QVERIFY(list->size() > 0 && !form->isManaged(list->card(0)));
        QVERIFY(!saved.contains("contactBig"_q));
    }
};

OMBRIN_TEST_MAIN(tst_DesignerEditor)
#include "tst_designereditor.moc"
