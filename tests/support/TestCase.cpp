#include "support/TestCase.h"

#include <algorithm>
#include <iterator>

namespace ombrin::test {

namespace {

QtMessageHandler g_previousHandler = nullptr;
QMutex g_warningsMutex;
QStringList g_warnings;

// What platform plug-ins say of their own limits, and not of the program.
bool isOfPlatform(const QString &message)
{
    static const QLatin1String beginnings[] = {
            // offscreen, of every frameless window and every mask
            QLatin1String("This plugin does not support"),
            // windows, of framed windows smaller than the system lets them be
            QLatin1String("setGeometry: Unable to set geometry"),
            // windows under Wine, of the system's own icons
            QLatin1String("QPixmap::fromWinHICON(), failed to GetIconInfo()"),
    };
    return std::any_of(
            std::begin(beginnings), std::end(beginnings),
            [&message](QLatin1String beginning) { return message.startsWith(beginning); });
}

void recordWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // Not even printed, since Qt Test gives up on a test after 2000 of them.
    if (isOfPlatform(message))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg) {
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

bool registerPictures(const char *file)
{
    return QResource::registerResource(QCoreApplication::applicationDirPath() + QLatin1Char('/')
                                       + QLatin1String(file));
}

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

QStringList methodsOf(const QMetaObject &metaObject)
{
    QStringList signatures;
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index)
        signatures.append(QString::fromLatin1(metaObject.method(index).methodSignature()));
    return signatures;
}

void prepareApplication()
{
    QApplication::setOrganizationName("ombrin"_q);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStyleFactory::create("fusion"_q));
    QApplication::setPalette(QApplication::style()->standardPalette());
    for (const auto effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                              Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip})
        QApplication::setEffectEnabled(effect, false);

    const QString file = QCoreApplication::applicationDirPath() + "/testdata/DejaVuSans.ttf"_q;
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
