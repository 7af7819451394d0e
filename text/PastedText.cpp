#include "text/PastedText.h"

#include <QtCore/QVariant>
#include <QtGui/QTextDocument>

namespace ombrin {

namespace {

// Reading style sheets and pictures named by a stranger could hang, or tell the stranger.
class ClosedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return QVariant(); }
};

} // namespace

QString pastedText(const QString &html)
{
    ClosedDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(html);
    const QString text =
            document.toPlainText().remove(QChar(QChar::ObjectReplacementCharacter)).trimmed();

    QString collapsed;
    collapsed.reserve(text.size());
    bool isInSpace = false;
    for (const QChar c : text) {
        if (!c.isSpace() || !isInSpace)
            collapsed += c;
        isInSpace = c.isSpace();
    }
    return collapsed;
}

} // namespace ombrin
