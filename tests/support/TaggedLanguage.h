#pragma once

#include "support/TestCase.h"

namespace ombrin::test {

/// A language in which every text bears its context and its translator's comment.
class TaggedLanguage : public QTranslator
{
public:
    TaggedLanguage()
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    }
    ~TaggedLanguage() override
    {
        QCoreApplication::removeTranslator(this);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    }

    QString translate(const char *context, const char *text, const char *comment,
                      int) const override
    {
        return "%1|%2|%3"_q.arg(QLatin1String(context), QLatin1String(text),
                                QLatin1String(comment));
    }
    bool isEmpty() const override { return false; }
};

} // namespace ombrin::test
