#pragma once

#include "support/Text.h"

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets> // and with it all of QtCore and QtGui

#include <memory>
#include <type_traits>

namespace ombrin::test {

/// A cell of a test's table: of a text, also as it stands in double quotes.
class TextCell
{
public:
    TextCell(const char *text)
        : m_text(QString::fromUtf8(text))
    {}
    TextCell(const QString &text)
        : m_text(text)
    {}
    operator const QString &() const { return m_text; }

private:
    QString m_text;
};
template <typename Type>
using Cell = std::conditional_t<std::is_same_v<Type, QString>, TextCell, Type>;

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

    /// Gives the table of a test the columns \a names and returns what adds rows to it:
    ///     const auto row = columns<int, QString>("rating", "stars");
    ///     row("half a star", 1, "heeee");
    template <typename... Types, typename... Names>
    static auto columns(Names... names)
    {
        (QTest::addColumn<Types>(names), ...);
        return [](const char *name, const Cell<Types> &...cells) {
            (QTest::newRow(name) << ... << static_cast<const Types &>(cells));
        };
    }

private Q_SLOTS:
    void init();
    void cleanup();

private:
    QVector<QRegularExpression> m_expectedWarnings;
};

/// Prepares the application every test runs in: pinned font, Fusion style, standard palette, no
/// animated effects, settings and data folders in a place of their own.
void prepareApplication();

/// Registers a file of the skin's pictures, named from the folder of the test programs.
bool registerPictures(const char *file);

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
