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
    // Qt takes a factory once, however often it is installed, but looks for it in a list.
    static const bool installed = (QAccessible::installFactory(createInterface), true);
    Q_UNUSED(installed)
}

} // namespace ombrin

#else

namespace ombrin {

void installBalloonTipAccessibility() {}

} // namespace ombrin

#endif
