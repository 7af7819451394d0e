#include "support/Files.h"
#include "support/TestCase.h"

#include "ui_allwidgets.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

#include <ombrin/OmDialog2.h>
#include <ombrin/OmSkin.h>

namespace {

QString pluginFolder()
{
    return QCoreApplication::applicationDirPath() + "/designer"_q;
}

/// A form, loaded at run time or compiled.
std::unique_ptr<QWidget> load(QIODevice *device)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(pluginFolder());
    return std::unique_ptr<QWidget>(loader.load(device));
}

std::unique_ptr<QWidget> loadedForm()
{
    QFile file(QCoreApplication::applicationDirPath() + "/testdata/allwidgets.ui"_q);
    return file.open(QIODevice::ReadOnly) ? load(&file) : nullptr;
}

std::unique_ptr<QWidget> compiledForm()
{
    auto window = std::make_unique<ombrin::OmWindow>();
    Ui::AllWidgets().setupUi(window.get());
    return window;
}

/// A form of one widget of \a className with \a contents.
QByteArray smallForm(const QString &className, const QString &contents)
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"%1\" "
           "name=\"widget\">%2</widget></ui>"_q.arg(className, contents)
                   .toUtf8();
}

QString shown(const QVariant &value)
{
    if (value.userType() == QMetaType::QPixmap) {
        const QSize size = value.value<QPixmap>().size();
        return "%1x%2"_q.arg(size.width()).arg(size.height());
    }
    const bool isEnumeration = value.userType() >= QMetaType::User;
    return isEnumeration ? QString::number(value.toInt()) : value.toString();
}

QList<QDesignerCustomWidgetInterface *> widgetsOfPlugin()
{
    const QDir folder(pluginFolder());
    QPluginLoader loader(folder.filePath(folder.entryList(QDir::Files).value(0)));
    const auto *const collection =
            qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

} // namespace

class tst_DesignerForms : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void setUp() override { ombrin::OmSkin::registerPictures(); }

    /// A class whose header came without an entry in the plug-in would be missing in the widget
    /// box.
    void pluginNamesEveryWidget()
    {
        // What the program opens, or lays over another widget.
        const QStringList notPlaced = ombrin::test::words(
                "COmWizard_Base COmWizard_Standard OmAvatar OmBalloonTip OmCalendar "
                "OmCheckBoxAssortmentItem OmFaderWidget OmInputDialog OmMessageBox "
                "OmScreenShooter_FullscreenCutter OmWizard_Standard2");
        QStringList expected;
        const QRegularExpression widget(
                "class OMBRIN_GUI_EXPORT (\\w+)\\s*:\\s*public (?!QObject|Q\\w*Delegate|"
                "QSyntax|QProxy|OmScribbledZebraItem)(Q|Om|COmWizard_)\\w+"_q);
        QDirIterator headers(QStringLiteral(OMBRIN_HEADERS), {"*.h"_q});
        while (headers.hasNext()) {
            const auto found =
                    widget.match(QString::fromUtf8(ombrin::test::contentsOf(headers.next())));
            if (found.hasMatch() && !notPlaced.contains(found.captured(1)))
                expected.append(found.captured(1));
        }
        QStringList named;
        const auto widgets = widgetsOfPlugin();
        for (const auto *const offered : widgets)
            named.append(offered->name().section("::"_q, -1));
        expected.sort();
        named.sort();
        QCOMPARE(named, expected);
    }

    void pluginDescribesEveryWidget()
    {
        const auto widgets = widgetsOfPlugin();
        QVERIFY(!widgets.isEmpty());
        for (auto *const offered : widgets) {
            const QByteArray name = offered->name().toUtf8();
            const std::unique_ptr<QWidget> widget(offered->createWidget(nullptr));
            QCOMPARE(widget->metaObject()->className(), name.constData());
            QCOMPARE(offered->group(), "Ombrin"_q);
            QVERIFY2(offered->toolTip().size() > 10 && offered->whatsThis().size() > 30, name);
            QCOMPARE(offered->icon().pixmap(22).size(), QSize(22, 22));
            const QString dense = ":/ombrin/designer/%1@2x.png"_q;
            QVERIFY2(QFile::exists(dense.arg(offered->name().section("::"_q, -1))), name);
            const QString header = offered->includeFile().mid(1).chopped(1);
            QVERIFY2(QFile::exists(QStringLiteral(OMBRIN_HEADERS "/../") + header), name);
        }
    }

    void propertiesArrive_data()
    {
        const auto row = columns<QString>("value");
        const auto picture = [row](const char *property, const char *path) {
            const QSize size = QPixmap(QLatin1String(path)).size();
            row(property, "%1x%2"_q.arg(size.width()).arg(size.height()));
        };
        row("AllWidgets.windowTitle", "All widgets");
        row("pushButton.text", "&Call");
        row("toolButton.text", "More");
        row("imageButton.checked", "true");
        row("imageButton.offset", "2");
        picture("imageButton.pixmapUp", ":/chat-16");
        picture("imageButton.pixmapDisabledSelected", ":/block-16");
        picture("imageMaskedWidget.pixmap", ":/no_userpic-78");
        picture("imageMaskedButton.pixmap", ":/countdown-snap-64.png");
        picture("imageMaskedButton.pixmapHovered", ":/countdown-snap-hover-64.png");
        picture("imageMaskedButton.pixmapPressed", ":/countdown-snap-pressed-64.png");
        row("linkButton.textElideMode", "2");
        row("menuItem.icon", ":/chat-16");
        row("lineEdit.noFocusMessage", "Name");
        row("lineEdit.text", "");
        row("firstChild.text", "Ada");
        row("searchField.defaultText", "Search contacts");
        row("textEdit.maxLength", "4000");
        row("iconComboBox.currentText", "Phone");
        row("ratingLabel.rating", "7");
        row("label.elide", "true");
        row("label.elideMode", "2");
        row("label.link", "true");
        row("label.text", "A text that is rather too long for its place");
        row("infoPopup.popupMessage", "Ann wrote:");
        row("infoPopup.notice", "Back soon");
        row("infoPopup.noticeInput", "true");
        row("textBrowser.copyable", "false");
        row("textBrowser.saveableImages", "true");
        picture("avatarSmall.avatar", ":/chat-32");
        row("contactCard.alias", "Ada");
        row("contactCard.status", "2");
        row("contactCard.generalApp", "11");
        row("contactCard.blocked", "true");
        picture("contactCard.avatar", ":/chat-32");
        row("contactCardList.addContactButton", "true");
        row("checkBoxAssortmentView.text", "Groups");
        row("checkBoxAssortmentView.addButtonVisible", "true");
        row("checkBoxAssortmentView.retracted", "true");
        row("scribbledZebraView.minimumLineHeight", "24");
        row("smoothList.count", "2");
        row("tabBar.dragableTabs", "true");
        row("tabBar.tabText", "false");
        row("tabWidget.dragableTabs", "true");
        row("tabWidget.closeTabButton", "true");
        row("tabWidget.currentIndex", "1");
        row("statusBar.sizeGripEnabled", "false");
    }
    void propertiesArrive()
    {
        const QStringList name =
                QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char('.'));
        for (const auto &form : {loadedForm(), compiledForm()}) {
            const QWidget *const widget = form->objectName() == name.first()
                                                  ? form.get()
                                                  : form->findChild<QWidget *>(name.first());
            QVERIFY(widget);
            QTEST(shown(widget->property(qPrintable(name.last()))), "value");
        }
    }

    void formsHaveTheRightParts()
    {
        for (const auto &form : {loadedForm(), compiledForm()}) {
            auto *const window = qobject_cast<ombrin::OmWindow *>(form.get());
            QVERIFY(window);
            QCOMPARE(window->windowTitleOnly(), "All widgets"_q);

            const auto widgets = widgetsOfPlugin();
            for (const auto *const offered : widgets) {
                const QString simple = offered->name().section("::"_q, -1).mid(2);
                if (simple == "Window"_q || simple == "Dialog2"_q)
                    continue;
                const auto *const widget =
                        form->findChild<QWidget *>(simple.at(0).toLower() + simple.mid(1));
                QVERIFY2(widget, qPrintable(simple));
                QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), offered->name());
            }

            auto *const tabs = form->findChild<ombrin::OmTabWidget *>();
            QCOMPARE(tabs->count(), 2);
            QCOMPARE(tabs->tabText(1), "Ada"_q);
            QVERIFY(tabs->widget(0)->findChild<QWidget *>("firstChild"_q));
            QVERIFY(tabs->widget(1)->findChild<QWidget *>("secondChild"_q));
            auto *const popup = form->findChild<ombrin::OmTrayPopup *>();
            QVERIFY(popup->findChild<ombrin::OmLinkButton *>("popupChild"_q));
            QCOMPARE(form->findChild<ombrin::OmToolBar *>()->actions().size(), 2);
            QCOMPARE(form->findChild<ombrin::OmSmoothList *>()->item(1)->text(), "Sounds"_q);
            QVERIFY(!form->findChild<ombrin::OmIconComboBox *>()->itemIcon(0).isNull());

            // The layout keeps its widgets inside the frame, and none upon another.
            form->resize(900, 900);
            form->show();
            QVERIFY(QTest::qWaitForWindowExposed(form.get()));
            QRegion taken;
            for (int index = 0; index < form->layout()->count(); ++index) {
                const QRect place = form->layout()->itemAt(index)->geometry();
                QVERIFY(form->contentsRect().contains(place) && !taken.intersects(place));
                taken += place;
            }
            QVERIFY(popup->isVisible());
            form->findChild<ombrin::OmLinkButton *>("linkButton"_q)->setChecked(true);
            form->findChild<ombrin::OmLinkButton *>("linkButton"_q)->setChecked(false);
            QVERIFY(!popup->isVisible());
        }
    }

    void dialogIsAWindow()
    {
        QBuffer buffer;
        buffer.setData(smallForm("ombrin::OmDialog2"_q,
                                 "<property name=\"windowTitle\"><string>Hello</string>"
                                 "</property><property name=\"fixed\"><bool>true</bool>"
                                 "</property>"_q));
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form = load(&buffer);
        auto *const dialog = qobject_cast<ombrin::OmDialog2 *>(form.get());
        QVERIFY(dialog && dialog->isWindow() && dialog->fixed());
        QCOMPARE(dialog->windowTitleOnly(), "Hello"_q);
    }

    void hostileFormsAreHarmless_data()
    {
        const auto row = columns<QString, QString, QString>("className", "type", "value");
        const QString biggest = QString::number(std::numeric_limits<int>::max());
        const QString smallest = QString::number(std::numeric_limits<int>::min());
        row("rating", "OmRatingLabel", "number", smallest);
        row("generalApp", "OmContactCard", "number", biggest);
        row("status", "OmContactCard", "number", "-7");
        row("internalId", "OmContactCard", "string", "no number");
        row("offset", "OmImageButton", "number", biggest);
        row("maxLength", "OmTextEdit", "number", smallest);
        row("currentIndex", "OmTabWidget", "number", biggest);
        row("icon", "OmMenuItem", "string", "/dev/zero");
        row("pixmap", "OmImageMaskedWidget", "string", "no picture");
        row("pixmapUp", "OmImageButton", "pixmap", ":/not/there");
        row("dict", "OmTextEdit", "string", "../../../etc,,%1,&lt;b>");
        row("alias", "OmContactCard", "string", QString(100000, QLatin1Char('W')));
        row("notThere", "OmContactCardList", "bool", "true");
    }
    void hostileFormsAreHarmless()
    {
        QFETCH(QString, className);
        QFETCH(QString, type);
        QFETCH(QString, value);
        QBuffer buffer;
        buffer.setData(smallForm("ombrin::"_q + className,
                                 "<property name=\"%1\"><%2>%3</%2></property>"_q.arg(
                                         QLatin1String(QTest::currentDataTag()), type, value)));
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form = load(&buffer);
        QCOMPARE(QString::fromLatin1(form->metaObject()->className()), "ombrin::"_q + className);
        form->resize(200, 100);
        QVERIFY(!form->grab().isNull());
    }
};

OMBRIN_TEST_MAIN(tst_DesignerForms)
#include "tst_designerforms.moc"
