#include <ombrin/OmStyle2.h>

#include <QtWidgets/QStyleFactory>

namespace ombrin {

namespace {

QStyle *createBaseStyle()
{
    if (QStyle *plastique = QStyleFactory::create(QStringLiteral("plastique")))
        return plastique;
    return QStyleFactory::create(QStringLiteral("fusion"));
}

} // namespace

OmStyle2::OmStyle2()
    : QProxyStyle(createBaseStyle())
{}

OmStyle2::~OmStyle2() = default;

} // namespace ombrin
