#include "support/TestCase.h"

#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmImageButton.h>
#include <ombrin/OmLabel.h>

using namespace ombrin;

class tst_OmCheckBoxAssortment : public ombrin::test::TestCase
{
    Q_OBJECT

protected:
    void setUp() override
    {
        m_view = new OmCheckBoxAssortmentView(nullptr);
        m_view->resize(200, 150);
    }
    void tearDown() override { delete m_view; }

private:
    OmCheckBoxAssortmentItem *add(const char *text, bool value = true, QColor color = Qt::black)
    {
        m_view->items().append(QString::fromLatin1(text), value, color, QVariant());
        return m_view->items().last();
    }
    QListWidget *rows() const { return m_view->findChild<QListWidget *>(); }
    QCheckBox *checkBox(int row) const
    {
        return qobject_cast<QCheckBox *>(rows()->itemWidget(rows()->item(row)));
    }
    // What each row shows: its caption, with a star where it is checked.
    QString shown() const
    {
        QStringList texts;
        for (int row = 0; row < rows()->count(); ++row) {
            const QString mark = checkBox(row)->isChecked() ? "*"_q : QString();
            texts.append(checkBox(row)->text() + mark);
        }
        return texts.join(QLatin1Char(' '));
    }
    // The adding and the folding button.
    OmImageButton *button(int index) const
    {
        return m_view->findChildren<OmImageButton *>().at(index);
    }

    QPointer<OmCheckBoxAssortmentView> m_view;

private Q_SLOTS:
    void rowsFollowTheItems()
    {
        QCOMPARE(m_view->sizeHint(), QSize(250, 27));
        OmCheckBoxAssortmentItem *a = add("A", true, Qt::red);
        QCOMPARE(m_view->sizeHint(), QSize(250, 43));
        QCOMPARE(checkBox(0)->palette().color(QPalette::WindowText), QColor(Qt::red));
        m_view->items().prepend("B"_q, false, Qt::blue, 7);
        m_view->items().insert(1, "C"_q, true, Qt::green, QVariant());
        QCOMPARE(shown(), "B C* A*"_q);
        QCOMPARE(m_view->items().first()->data(), QVariant(7));

        a->setText("a"_q);
        a->setColor(Qt::blue);
        m_view->items().move(2, 0);
        QCOMPARE(shown(), "a* B C*"_q);
        QCOMPARE(checkBox(0)->palette().color(QPalette::WindowText), QColor(Qt::blue));
        delete m_view->items().takeFirst();
        QCOMPARE(shown(), "B C*"_q);
        m_view->items().append(nullptr);
        const OmCheckBoxAssortmentItem *const b = m_view->items().first();
        m_view->items().first() = nullptr; // past the hooks
        m_view->setText("Groups"_q);
        QCOMPARE(shown(), "B C*"_q);
        delete b;
        m_view->items().clear();
        QCOMPARE(shown(), QString());
    }

    void colorsSurviveStyleSheets()
    {
        const QPalette before = QApplication::palette();
        QPalette dark = before;
        dark.setColor(QPalette::Base, Qt::black);
        QApplication::setPalette(dark);
        qApp->setStyleSheet("QToolTip { color: blue }"_q);
        add("A", true, Qt::red);
        QWidget window;
        m_view->setParent(&window);
        window.show();
        QCOMPARE(checkBox(0)->palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(rows()->viewport()->palette().color(QPalette::Base), QColor(Qt::white));
        qApp->setStyleSheet(QString());
        QCOMPARE(checkBox(0)->palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(rows()->viewport()->palette().color(QPalette::Base), QColor(Qt::white));
        QApplication::setPalette(before);
    }

    void clicksAndValuesAreTold()
    {
        add("A");
        OmCheckBoxAssortmentItem *b = add("B", false);
        QSignalSpy changed(m_view.data(), &OmCheckBoxAssortmentView::signalOnItemCheckChanged);
        checkBox(1)->click();
        QVERIFY(b->value());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).value<OmCheckBoxAssortmentItem *>(), b);
        b->setValue(false);
        QCOMPARE(changed.size(), 2);
        b->setValue(false);
        b->setText("b"_q);
        m_view->items().move(0, 1);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(shown(), "b A*"_q);
        checkBox(1)->setTristate(true);
        checkBox(1)->setCheckState(Qt::PartiallyChecked);
        QCOMPARE(changed.size(), 2);
    }

    void deletedItemsLeaveTheirRow()
    {
        OmCheckBoxAssortmentItem *a = add("A");
        OmCheckBoxAssortmentItem *b = add("B");
        add("C");
        delete b;
        QCOMPARE(shown(), "A* C*"_q);
        OmCheckBoxAssortmentView other(nullptr);
        other.items().append(a); // which leaves its view
        QCOMPARE(shown(), "C*"_q);
        QCOMPARE(a->parentWidget(), &other);
        const QPointer<OmCheckBoxAssortmentItem> last = m_view->items().last();
        OmCheckBoxAssortmentItem *taken = add("D");
        m_view->items().removeLast();
        QCOMPARE(taken->parentWidget(), m_view.data());
        delete m_view;
        QVERIFY(!last);
    }

    void hostsMayDeleteAnythingWhileAClickIsTold_data()
    {
        columns<bool, bool>("deletesView", "byClick");
        for (int row = 0; row < 4; ++row)
            QTest::addRow("%d", row) << (row > 1) << (row % 2 == 1);
    }
    void hostsMayDeleteAnythingWhileAClickIsTold()
    {
        QFETCH(bool, deletesView);
        QFETCH(bool, byClick);
        OmCheckBoxAssortmentItem *a = add("A");
        add("B");
        connect(m_view.data(), &OmCheckBoxAssortmentView::signalOnItemCheckChanged,
                [this, deletesView](QObject *item) {
                    delete (deletesView ? static_cast<QObject *>(m_view) : item);
                });
        if (byClick)
            checkBox(0)->click();
        else
            a->setValue(false);
        QCOMPARE(m_view.isNull(), deletesView);
        if (m_view)
            QCOMPARE(shown(), "B*"_q);
    }

    void headerHoldsCaptionAndButtons()
    {
        auto *label = m_view->findChild<OmLabel *>();
        m_view->setText("Groups"_q);
        QCOMPARE(label->text(), "Groups"_q);
        QVERIFY(label->font().bold());
        QCOMPARE(label->geometry(), QRect(8, 0, 160, 24));
        QVERIFY(button(0)->isHidden());
        m_view->setIsAddButtonVisible(true);
        QVERIFY(!button(0)->isHidden());
        QCOMPARE(label->geometry(), QRect(8, 0, 136, 24));
        QCOMPARE(button(0)->geometry(), QRect(152, 0, 24, 24));
        QCOMPARE(button(1)->geometry(), QRect(176, 0, 24, 24));
        const auto *frame = qobject_cast<QFrame *>(rows()->parentWidget());
        QCOMPARE(frame->geometry(), QRect(0, 24, 200, 126));
        const int beside = 5 + frame->frameWidth();
        QCOMPARE(rows()->geometry(), QRect(5, 5, 200 - beside, 126 - beside));
        m_view->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(label->geometry(), QRect(56, 0, 136, 24));
        QCOMPARE(button(1)->geometry(), QRect(0, 0, 24, 24));
        m_view->setStyleSheet("QFrame { border: 6px solid red }"_q);
        QTRY_COMPARE_WITH_TIMEOUT(rows()->size(), QSize(200 - 11, 126 - 11), 20000);
        m_view->setStyleSheet(QString());

        QSignalSpy added(m_view.data(), &OmCheckBoxAssortmentView::signalOnAddClicked);
        m_view->show();
        QTest::mouseClick(button(0), Qt::LeftButton);
        QCOMPARE(added.size(), 1);
        connect(m_view.data(), &OmCheckBoxAssortmentView::signalOnAddClicked,
                [this] { delete m_view; });
        QTest::mouseClick(button(0), Qt::LeftButton);
        QVERIFY(!m_view);
    }

    void viewFoldsToItsHeader()
    {
        add("A");
        m_view->show();
        QCOMPARE(m_view->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
        for (const bool retracted : {true, false}) {
            QTest::mouseClick(button(1), Qt::LeftButton);
            QCOMPARE(m_view->isRetracted(), retracted);
            QCOMPARE(button(1)->property("retracted").toBool(), retracted);
            QCOMPARE(rows()->isVisible(), !retracted);
            QCOMPARE(m_view->sizeHint(), QSize(250, retracted ? 24 : 43));
            QCOMPARE(m_view->sizePolicy().verticalPolicy(),
                     retracted ? QSizePolicy::Fixed : QSizePolicy::Expanding);
        }
        QCOMPARE(m_view->minimumSizeHint(), QSize(60, 24));
    }

    void itemsAreNeverShown()
    {
        OmCheckBoxAssortmentItem *a = add("A");
        m_view->show();
        OmCheckBoxAssortmentItem *b = add("B");
        QVERIFY(!a->isVisible() && !b->isVisible());
    }
};

OMBRIN_TEST_MAIN(tst_OmCheckBoxAssortment)
#include "tst_omcheckboxassortment.moc"
