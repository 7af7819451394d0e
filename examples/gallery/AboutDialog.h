#pragma once

#include <ombrin/OmDialog2.h>

namespace gallery {

/// Tells which versions of the library and of Qt are running.
class AboutDialog : public ombrin::OmDialog2
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
};

} // namespace gallery
