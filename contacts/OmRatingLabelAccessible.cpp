#include "contacts/OmRatingLabelAccessible.h"

#include <ombrin/OmRatingLabel.h>

#include <QtGui/QAccessible>

#if QT_CONFIG(accessibility)

#include <QtWidgets/QAccessibleWidget>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kLeast = 0;
constexpr int kMost = 10;

} // namespace

// Outside the unnamed namespace, as the label makes it a friend.
class OmRatingLabelAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit OmRatingLabelAccessible(OmRatingLabel *label)
        : QAccessibleWidget(label, QAccessible::Slider)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return currentValue().toString();
        return QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return std::clamp(label()->rating(), kLeast, kMost); }

    void setCurrentValue(const QVariant &value) override
    {
        if (label()->isEnabled())
            label()->giveRating(std::clamp(value.toInt(), kLeast, kMost));
    }

    QVariant maximumValue() const override { return kMost; }
    QVariant minimumValue() const override { return kLeast; }
    QVariant minimumStepSize() const override { return 1; }

private:
    OmRatingLabel *label() const { return static_cast<OmRatingLabel *>(widget()); }
};

namespace {

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(OmRatingLabel::staticMetaObject.className()))
        return nullptr;
    auto *const label = qobject_cast<OmRatingLabel *>(object);
    return label ? new OmRatingLabelAccessible(label) : nullptr;
}

} // namespace

void installRatingLabelAccessibility()
{
    // Not once for all: an application that ends takes the factories along. Qt takes each once.
    QAccessible::installFactory(createInterface);
}

void announceRating(OmRatingLabel *label)
{
    QAccessibleValueChangeEvent event(label, std::clamp(label->rating(), kLeast, kMost));
    QAccessible::updateAccessibility(&event);
}

} // namespace ombrin

#else

namespace ombrin {

void installRatingLabelAccessibility() {}
void announceRating(OmRatingLabel *) {}

} // namespace ombrin

#endif
