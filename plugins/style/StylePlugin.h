#pragma once

#include <QtWidgets/QStylePlugin>

/// Gives Qt programs the style "ombrin": \c -style \c ombrin on their command line, or
/// \c QT_STYLE_OVERRIDE=ombrin in their environment.
///
/// The skin is that of OmSkin::folder(), and is looked for in \c skins beside the plug-in too.
class StylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "ombrin.json")

public:
    /// A new style for the key "ombrin" in any case of letters, else null.
    QStyle *create(const QString &key) override;
};
