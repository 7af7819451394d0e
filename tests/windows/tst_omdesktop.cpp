#include "support/TestCase.h"

#include <ombrin/OmDesktop.h>

using ombrin::OmDesktop;

class tst_OmDesktop : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void centresInTheWorkAreaCountedFromTheOrigin()
    {
        const QSize area = QGuiApplication::primaryScreen()->availableGeometry().size();
        const std::pair<QSize, QPoint> cases[] = {
                {{500, 400}, {250, 200}}, {{501, 401}, {250, 200}}, {{-101, -51}, {-50, -25}}};
        for (const auto &[leftOver, position] : cases) {
            QWidget widget;
            widget.resize(area - leftOver);
            OmDesktop::setCentered(&widget);
            QCOMPARE(widget.geometry(), QRect(position, area - leftOver));
        }
    }

    void backgroundIsFilledAtOnceInEveryState()
    {
        const QColor color(18, 52, 86);
        QWidget window;
        window.resize(40, 30);
        struct Painted : QWidget
        {
            using QWidget::QWidget;
            void paintEvent(QPaintEvent *) override { ++paints; }
            int paints = 0;
        } child(&window);
        child.setGeometry(10, 10, 20, 10);
        child.setBackgroundRole(QPalette::Highlight);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QCoreApplication::processEvents();
        const int before = child.paints;
        OmDesktop::setBackgroundColor(&child, color);
        QVERIFY(child.paints > before);
        QVERIFY(child.autoFillBackground());
        QCOMPARE(child.backgroundRole(), QPalette::Window);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(child.palette().brush(group, QPalette::Window), QBrush(color));
        for (const bool enabled : {true, false}) {
            child.setEnabled(enabled);
            const QImage picture = window.grab().toImage();
            QCOMPARE(picture.pixelColor(10, 10), color);
            QCOMPARE(picture.pixelColor(29, 19), color);
            QVERIFY(picture.pixelColor(9, 10) != color);
        }
    }

    void textColorReplacesTheStyleSheet()
    {
        QWidget widget;
        widget.setStyleSheet("font: bold"_q);
        OmDesktop::setTextColor(&widget, QColor(255, 0, 0));
        QCOMPARE(widget.styleSheet(), "color : #ff0000"_q);
        OmDesktop::setTextColor(&widget, QColor(10, 171, 205, 30));
        QCOMPARE(widget.styleSheet(), "color : #0aabcd"_q);
    }

    void nothingBecomesANativeWindow()
    {
        QWidget hidden;
        QWidget window;
        window.resize(100, 100);
        QWidget child(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (QWidget *widget : {&hidden, &window, &child}) {
            OmDesktop::flashWindow(widget, true);
            OmDesktop::setForeground(widget);
        }
        QVERIFY(!hidden.testAttribute(Qt::WA_WState_Created));
        QVERIFY(!child.testAttribute(Qt::WA_NativeWindow));
        QVERIFY(window.isVisible());
    }

    void nullWidgetIsHarmless()
    {
        OmDesktop::flashWindow(nullptr, true);
        OmDesktop::setForeground(nullptr);
        OmDesktop::setCentered(nullptr);
        OmDesktop::setBackgroundColor(nullptr, Qt::red);
        OmDesktop::setTextColor(nullptr, Qt::red);
        OmDesktop::setDesktop(nullptr, 1);
        QCOMPARE(OmDesktop::currentDesktop(nullptr), 0);
        QCOMPARE(OmDesktop::currentActiveDesktop(), 0);
    }
};

OMBRIN_TEST_MAIN(tst_OmDesktop)
#include "tst_omdesktop.moc"
