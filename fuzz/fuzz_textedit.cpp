// The chat input: what is pasted and typed into it while its spelling is checked.

#include "FuzzTarget.h"

#include "support/SpellingFolder.h"

#include <ombrin/OmTextEdit.h>

#include <QtCore/QMimeData>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>

namespace {

using ombrin::fuzz::Input;

constexpr int kMostSteps = 40;

class Edit : public ombrin::OmTextEdit
{
public:
    void paste(const QMimeData &data) { insertFromMimeData(&data); }
};

void paste(Edit *edit, Input *input)
{
    QMimeData data;
    const int kinds = input->byte();
    const QByteArray bytes = input->line();
    if (kinds & 1)
        data.setData(QStringLiteral("text/html"), bytes);
    if (kinds & 2)
        data.setData(QStringLiteral("text/plain"), bytes);
    if (kinds & 4)
        data.setData(QStringLiteral("text/uri-list"), bytes);
    if (kinds & 8)
        data.setData(QStringLiteral("application/x-qrichtext"), bytes);
    edit->paste(data);
}

void press(Edit *edit, Input *input)
{
    static constexpr int kKeys[] = {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Left,
                                    Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,    Qt::Key_Up,
                                    Qt::Key_Z,         Qt::Key_A,      Qt::Key_Y,      Qt::Key_X};
    const int key = kKeys[input->choice(int(std::size(kKeys)))];
    const auto modifiers = Qt::KeyboardModifiers(input->choice(4) << 25);
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(edit, &event);
}

void type(Edit *edit, const QString &text)
{
    for (const QChar letter : text) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QCoreApplication::sendEvent(edit, &event);
    }
}

void compose(Edit *edit, Input *input)
{
    QInputMethodEvent event(input->text(), {});
    event.setCommitString(input->text(), input->number(), input->choice(8));
    QCoreApplication::sendEvent(edit, &event);
}

void step(Edit *edit, Input *input)
{
    switch (input->choice(8)) {
    case 0:
        return paste(edit, input);
    case 1:
        return press(edit, input);
    case 2:
        return type(edit, input->text());
    case 3:
        return compose(edit, input);
    case 4:
        return edit->setMaxLength(input->number());
    case 5:
        return edit->setSpellChecking(input->choice(2) == 1);
    case 6:
        return edit->setRegardCase(input->choice(2) == 1);
    default:
        return edit->resize(input->byte(), input->byte());
    }
}

void checkFormats(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            FUZZ_CHECK(!format.isImageFormat() && !format.isAnchor());
        }
    }
}

void chooseDictionary()
{
    static const auto *const folder = [] {
        auto *made = new ombrin::test::SpellingFolder;
        made->add(QStringLiteral("fuzz"), {"hello", "you", "don't",
                                           "stra\xC3\x9F"
                                           "e",
                                           "a"});
        ombrin::OmSpelling::instance()->setDict(QStringLiteral("fuzz"));
        return made;
    }();
    Q_UNUSED(folder)
}

void run(Input input)
{
    chooseDictionary();
    Edit edit;
    edit.setSpellChecking(true);
    edit.resize(200, 100);
    for (int steps = 0; steps < kMostSteps && !input.isEmpty(); ++steps)
        step(&edit, &input);
    checkFormats(*edit.document());
    edit.grab();
    ombrin::fuzz::runEvents();
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
