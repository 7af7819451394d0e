#include "support/TestCase.h"

#include <QtCore/QMutex>
#include <QtCore/QMutexLocker>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>

namespace ombrin::test {

namespace {

QtMessageHandler g_previousHandler = nullptr;
QMutex g_warningsMutex;
QStringList g_warnings;

void recordWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The offscreen platform says so of every frameless window and every mask.
    const bool isOfPlatform = message.startsWith(QLatin1String("This plugin does not support"));
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !isOfPlatform) {
        const QMutexLocker locker(&g_warningsMutex);
        g_warnings.append(message);
    }
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

QString describe(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ')
           + widget->objectName();
}

QStringList leftoverTopLevels()
{
    // Menus and line edits delete their helpers with deleteLater().
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList leftovers;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        const bool isOfQt = widget->inherits("QTipLabel") || widget->windowType() == Qt::Desktop;
        if (!isOfQt)
            leftovers.append(describe(widget));
    }
    return leftovers;
}

} // namespace

void TestCase::expectWarning(const QString &pattern)
{
    m_expectedWarnings.append(QRegularExpression(pattern));
}

void TestCase::init()
{
    m_expectedWarnings.clear();
    {
        const QMutexLocker locker(&g_warningsMutex);
        g_warnings.clear();
    }
    g_previousHandler = qInstallMessageHandler(recordWarning);
    setUp();
}

void TestCase::cleanup()
{
    tearDown();
    const QStringList leftovers = leftoverTopLevels();
    qInstallMessageHandler(g_previousHandler);
    g_previousHandler = nullptr;

    QStringList unexpected;
    {
        const QMutexLocker locker(&g_warningsMutex);
        unexpected = g_warnings;
    }
    for (const QRegularExpression &expected : std::as_const(m_expectedWarnings)) {
        const QStringList matching = unexpected.filter(expected);
        for (const QString &warning : matching)
            unexpected.removeAll(warning);
    }
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QLatin1Char('\n'))));
    QVERIFY2(leftovers.isEmpty(), qPrintable(leftovers.join(QLatin1Char('\n'))));
}

void prepareApplication()
{
    QApplication::setOrganizationName(QStringLiteral("ombrin"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QApplication::setEffectEnabled(Qt::UI_FadeMenu, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
    QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);

    const QString file =
            QCoreApplication::applicationDirPath() + QStringLiteral("/testdata/DejaVuSans.ttf");
    const int id = QFontDatabase::addApplicationFont(file);
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty())
        qFatal("The test font %s cannot be loaded.", qPrintable(file));
    QFont font(families.first());
    font.setPixelSize(12);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
}

} // namespace ombrin::test
