#pragma once

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>

namespace ombrin::test {

/// Base of every test class.
///
/// After each test function it fails the test when a warning was printed that was not announced
/// with expectWarning(), or when a top-level widget is left behind. Derived classes put their own
/// preparation into setUp() and tearDown().
class TestCase : public QObject
{
    Q_OBJECT

public:
    /// Announces that this test function prints warnings matching \a pattern.
    void expectWarning(const QString &pattern);

    /// Runs the event loop until \a condition holds or \a timeoutMs milliseconds are over.
    template <typename Condition>
    static bool waitFor(Condition condition, int timeoutMs = 20000)
    {
        return QTest::qWaitFor(condition, timeoutMs);
    }

protected:
    virtual void setUp() {}
    virtual void tearDown() {}

private Q_SLOTS:
    void init();
    void cleanup();

private:
    QVector<QRegularExpression> m_expectedWarnings;
};

/// Prepares the application every test runs in: pinned font, Fusion style, standard palette, no
/// animated effects, settings and data folders in a place of their own.
void prepareApplication();

/// The words of \a text, which are separated by spaces.
QStringList words(const char *text);

/// The signatures of the signals and slots that \a metaObject itself declares, in its order.
QStringList methodsOf(const QMetaObject &metaObject);

template <typename Test>
int run(int argc, char *argv[])
{
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    prepareApplication();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace ombrin::test

/// The main function of a test program with the one test class \a Test.
#define OMBRIN_TEST_MAIN(Test)                                                                     \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        return ombrin::test::run<Test>(argc, argv);                                                \
    }
