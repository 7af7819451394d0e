#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QProxyStyle>

namespace ombrin {

/// The application style.
class OMBRIN_GUI_EXPORT OmStyle2 : public QProxyStyle
{
    Q_OBJECT

public:
    OmStyle2();
    ~OmStyle2() override;
};

} // namespace ombrin
