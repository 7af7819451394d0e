#include "effects/OmBalloonTipAccessible.h"

#include <ombrin/OmBalloonTip.h>

#if QT_CONFIG(accessibility)

#include <QtWidgets/QAccessibleWidget>

namespace ombrin {

namespace {

class OmBalloonTipAccessible : public QAccessibleWidget
{
public:
    explicit OmBalloonTipAccessible(OmBalloonTip *tip)
        : QAccessibleWidget(tip, QAccessible::ToolTip)
    {}

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    QString localizedActionDescription(const QString &action) const override
    {
        return action == pressAction() ? OmBalloonTip::tr("Closes the balloon")
                                       : QAccessibleWidget::localizedActionDescription(action);
    }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            widget()->close();
        else
            QAccessibleWidget::doAction(action);
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(OmBalloonTip::staticMetaObject.className()))
        return nullptr;
    auto *const tip = qobject_cast<OmBalloonTip *>(object);
    return tip ? new OmBalloonTipAccessible(tip) : nullptr;
}

} // namespace

void installBalloonTipAccessibility()
{
    // Not once for all: an application that ends takes the factories along. Qt takes each once.
    QAccessible::installFactory(createInterface);
}

} // namespace ombrin

#else

namespace ombrin {

void installBalloonTipAccessibility() {}

} // namespace ombrin

#endif
