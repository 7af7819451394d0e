#include "GalleryPage.h"
#include "PageKit.h"
#include "StandardControls.h"

#include <QtGui/QHideEvent>
#include <QtGui/QShowEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>

namespace gallery {

namespace {

/// Takes the application's style sheet away while the page is on show; a box switches it back on.
class StyleSheetPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(StyleSheetPage)

public:
    StyleSheetPage();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void apply(bool useStyleSheet) const;

    QCheckBox *m_useStyleSheet;
    QString m_styleSheet;
};

StyleSheetPage::StyleSheetPage()
    : m_useStyleSheet(new QCheckBox(tr("Use the application's &style sheet")))
    , m_styleSheet(qApp->styleSheet())
{
    const std::pair<QString, QWidget *> panels[] = {
            {tr("Buttons and fields"), createFieldsPanel()},
            {tr("Item views"), createViewsPanel()},
            {tr("Containers"), createContainersPanel()},
    };
    QBoxLayout *cards = cardStack(Qt::Horizontal);
    for (const auto &[title, panel] : panels) {
        auto *card = new Card(title);
        card->body()->addWidget(panel, 1);
        cards->addWidget(card, 1);
    }
    m_useStyleSheet->setStatusTip(tr("Show what the style sheet changes; all windows follow"));
    connect(m_useStyleSheet, &QCheckBox::toggled, this, &StyleSheetPage::apply);
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(m_useStyleSheet);
    column->addLayout(cards, 1);
}

void StyleSheetPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        apply(m_useStyleSheet->isChecked());
}

void StyleSheetPage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        apply(true);
}

void StyleSheetPage::apply(bool useStyleSheet) const
{
    const QString styleSheet = useStyleSheet ? m_styleSheet : QString();
    if (qApp->styleSheet() != styleSheet)
        qApp->setStyleSheet(styleSheet);
}

} // namespace

GALLERY_PAGE(StyleSheetPage, "no-style-sheet", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Without style sheet"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "Qt's own controls under OmStyle2 alone, to be compared with the "
                               "pages before."));

} // namespace gallery
