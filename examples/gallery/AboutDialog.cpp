#include "AboutDialog.h"

#include "PageKit.h"

#include <ombrin/OmVersion.h>

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>

namespace gallery {

AboutDialog::AboutDialog(QWidget *parent)
    : OmDialog2(parent)
{
    setWindowTitle(tr("About the gallery"));
    setFixed(true);

    auto *picture = new QLabel;
    picture->setPixmap(skinPicture(QStringLiteral("chat-32")));
    auto *name = new QLabel(tr("ombrin gui %1").arg(QStringLiteral(OMBRIN_VERSION_STRING)));
    QFont font = name->font();
    font.setBold(true);
    name->setFont(font);
    auto *text = new QLabel(
            tr("Skinned windows and widgets for messaging clients.\n"
               "Running on Qt %1, built with Qt %2.")
                    .arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR)));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *grid = new QGridLayout;
    grid->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    grid->setHorizontalSpacing(kPageMargin);
    grid->setVerticalSpacing(6);
    grid->addWidget(picture, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(text, 1, 1);
    grid->setRowMinimumHeight(2, 8);
    grid->addWidget(buttons, 3, 0, 1, 2);
    auto *contents = new QWidget;
    contents->setAutoFillBackground(true);
    contents->setLayout(grid);
    setWidget(contents);
}

} // namespace gallery
