#include "support/Files.h"
#include "support/TestCase.h"

namespace {

struct Message
{
    QString translation;
    bool isFinished = true;
};

/// By context, text and the comment that tells apart what reads the same.
using Messages = QMap<QStringList, Message>;

Messages readFile(const QString &name)
{
    Messages found;
    QStringList key({QString(), QString(), QString()});
    Message message;
    QXmlStreamReader xml(ombrin::test::contentsOf(name));
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == "message"_q) {
            found.insert(key, message);
            key[2].clear();
            message = Message();
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QString element = xml.name().toString();
        if (element == "name"_q) {
            key[0] = xml.readElementText();
        } else if (element == "source"_q) {
            key[1] = xml.readElementText();
        } else if (element == "comment"_q) {
            key[2] = xml.readElementText();
        } else if (element == "translation"_q) {
            message.isFinished = xml.attributes().value("type"_q).isEmpty();
            message.translation = xml.readElementText();
        }
    }
    return xml.hasError() ? Messages() : found;
}

/// All files but the template.
QStringList languageFiles()
{
    QStringList found;
    QDirIterator files(QStringLiteral(OMBRIN_TRANSLATIONS), {"ombringui_*.ts"_q});
    while (files.hasNext())
        found.append(files.next());
    found.removeAll(QStringLiteral(OMBRIN_TRANSLATIONS "/ombringui_template.ts"));
    return found;
}

/// The texts that Qt finds in sources; \a arguments say where.
QList<QStringList> extractedTexts(QStringList arguments)
{
    const QTemporaryDir folder;
    const QString extracted = folder.filePath("texts.ts"_q);
    arguments << "-ts"_q << extracted;
    QProcess lupdate;
    lupdate.start(QStringLiteral(OMBRIN_LUPDATE), arguments);
    const bool hasWorked = lupdate.waitForFinished(120000) && lupdate.exitCode() == 0;
    return hasWorked ? readFile(extracted).keys() : QList<QStringList>();
}

QStringList listed(const char *items)
{
    return QString::fromUtf8(items).split(QLatin1Char('|'));
}

/// What must be the same in a text and its translation.
QString shapeOf(QString text)
{
    text.remove("&&"_q);
    QStringList places;
    const QRegularExpression place("%(\\d+|n|L\\d+)"_q);
    for (auto found = place.globalMatch(text); found.hasNext();)
        places.append(found.next().captured());
    places.sort();
    const bool isContinued = text.endsWith("..."_q) || text.endsWith(QChar(0x2026));
    return "%1 mnemonics, places %2%3%4"_q.arg(text.count(QLatin1Char('&')))
            .arg(places.join(QLatin1Char(' ')), isContinued ? ", ellipsis"_q : QString(),
                 text == text.trimmed() ? QString() : ", blanks"_q);
}

/// The code between an opening parenthesis, which \a source follows, and the closing one.
QString argumentsAt(const QString &source)
{
    int depth = 1;
    bool isText = false;
    QString found;
    for (auto at = source.begin(); at != source.end(); ++at) {
        if (*at == QLatin1Char('"') && !found.endsWith(QLatin1Char('\\')))
            isText = !isText;
        else if (!isText && *at == QLatin1Char('('))
            ++depth;
        else if (!isText && *at == QLatin1Char(')') && --depth == 0)
            break;
        found += *at;
    }
    return found;
}

} // namespace

class tst_TranslationFiles : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void filesHoldTheTextsOfTheSources()
    {
        const QList<QStringList> expected = extractedTexts(listed(OMBRIN_EXTRACTION));
        QVERIFY(expected.size() > 100);

        const Messages empty =
                readFile(QStringLiteral(OMBRIN_TRANSLATIONS "/ombringui_template.ts"));
        QCOMPARE(empty.keys(), expected);
        for (const Message &message : empty)
            QVERIFY(message.translation.isEmpty() && !message.isFinished);

        const QStringList files = languageFiles();
        QVERIFY(!files.isEmpty());
        for (const QString &file : files) {
            const QList<QStringList> found = readFile(file).keys();
            for (const QStringList &text : expected)
                QVERIFY2(found.contains(text), qPrintable(file + text.join(" | "_q)));
            for (const QStringList &text : found)
                QVERIFY2(expected.contains(text), qPrintable(file + text.join(" | "_q)));
        }
    }

    void everyTextIsTranslated()
    {
        const QStringList files = languageFiles()
                                  << QStringLiteral(OMBRIN_EXAMPLES "/messenger/messenger_de.ts");
        for (const QString &file : files) {
            const Messages messages = readFile(file);
            for (auto message = messages.begin(); message != messages.end(); ++message) {
                const QByteArray where = (file + message.key().join(" | "_q)).toUtf8();
                QVERIFY2(message->isFinished && !message->translation.isEmpty(), where);
                QVERIFY2(shapeOf(message->translation) == shapeOf(message.key().at(1)), where);
            }
        }
    }

    void messengerIsTranslatedToo()
    {
        const QString folder = QStringLiteral(OMBRIN_EXAMPLES);
        const QString messenger = folder + "/messenger"_q;
        const QList<QStringList> expected = extractedTexts(
                {"-silent"_q, "-I"_q, folder, "-I"_q, messenger, messenger, folder + "/common"_q});
        QVERIFY(expected.size() > 100);
        QCOMPARE(readFile(messenger + "/messenger_de.ts"_q).keys(), expected);
    }

    /// Looks for calls that show texts to the user and have letters in a literal that no function
    /// for translation surrounds.
    void noTextEscapesTranslation()
    {
        const QRegularExpression showing(
                "\\b(setText|setToolTip|setWindowTitle|setWindowTitleOnly|setTitle|setStatusTip|"
                "setWhatsThis|setPlaceholderText|setAccessibleName|setAccessibleDescription|"
                "setDefaultText|setNoFocusMessage|setPopupMessage|setNotice|setCaption|"
                "setLabelText|"
                "setInformativeText|setItemText|setTabText|setTabToolTip|setHtml|setPlainText|"
                "addAction|addMenu|addSection|addTab|addItem|addItems|insertItem|showMessage|"
                "QAction|"
                "QLabel|QMenu|QPushButton|QToolButton|QCheckBox|getSaveFileName|getOpenFileName|"
                "information|question|warning|critical)\\s*\\("_q);
        const QRegularExpression translating(
                "\\b(tr|translate|translated|QT_TRANSLATE_NOOP)\\s*\\("_q);
        const QRegularExpression literal("\"(?:[^\"\\\\]|\\\\.)*[A-Za-z]{2}[^\"]*\""_q);
        int calls = 0;
        const QStringList folders = listed(OMBRIN_FOLDERS);
        for (const QString &folder : folders) {
            QDirIterator sources(folder, {"*.cpp"_q, "*.h"_q}, QDir::Files,
                                 QDirIterator::Subdirectories);
            while (sources.hasNext()) {
                const QString name = sources.next();
                // Examples on a form that is being designed, as a form's own texts are.
                if (name.endsWith("/SampleContents.cpp"_q))
                    continue;
                QString source = QString::fromUtf8(ombrin::test::contentsOf(name));
                source.remove(QRegularExpression("//[^\\n]*"_q));
                for (auto found = showing.globalMatch(source); found.hasNext(); ++calls) {
                    QString shown = argumentsAt(source.mid(found.next().capturedEnd()));
                    for (auto call = translating.match(shown); call.hasMatch();
                         call = translating.match(shown)) {
                        shown.remove(call.captured() + argumentsAt(shown.mid(call.capturedEnd())));
                    }
                    // Paths of pictures are no texts.
                    shown.remove(QRegularExpression("\":/[^\"]*\""_q));
                    // The help button of a wizard is never shown.
                    shown.remove("\"hilfe ich seh nix\""_q);
                    QVERIFY2(!literal.match(shown).hasMatch(), qPrintable(name + shown));
                }
            }
        }
        QVERIFY(calls > 50);
    }
};

OMBRIN_TEST_MAIN(tst_TranslationFiles)
#include "tst_translationfiles.moc"
