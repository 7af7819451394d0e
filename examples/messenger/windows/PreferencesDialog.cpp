#include "windows/PreferencesDialog.h"

#include <ombrin/OmSpelling.h>
#include <ombrin/OmTabWidget.h>

#include <QtCore/QLocale>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

namespace messenger {

namespace {

constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr QSize kTabsSize(360, 190);

/// "en_US,de_DE" as people say it.
QString dictionaryNames(const QString &codes)
{
    QStringList names;
    for (const QString &code : codes.split(QLatin1Char(','))) {
        const QLocale locale(code);
        const bool isKnown = locale.language() != QLocale::C;
        names.append(isKnown ? QStringLiteral("%1 (%2)").arg(locale.nativeLanguageName(),
                                                             code.section(QLatin1Char('_'), 1))
                             : code);
    }
    return names.join(QStringLiteral(" + "));
}

QVBoxLayout *pageColumn(QWidget *page)
{
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    return column;
}

} // namespace

PreferencesDialog::PreferencesDialog(const Preferences &preferences, QWidget *parent)
    : OmDialog2(parent)
    , m_checksSpelling(new QCheckBox(tr("&Check spelling as I type")))
    , m_dictionaries(new QComboBox)
    , m_sendsTyping(new QCheckBox(tr("Let others see when I am &writing")))
    , m_showsBalloons(new QCheckBox(tr("Show new messages in &balloons")))
    , m_shakes(new QCheckBox(tr("&Shake the window when I am nudged")))
{
    setWindowTitle(tr("Preferences"));
    auto *tabs = new ombrin::OmTabWidget;
    tabs->addTab(createChatPage(), tr("Writing"));
    tabs->addTab(createMessagesPage(), tr("Messages"));
    tabs->setMinimumSize(kTabsSize);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *contents = new QWidget;
    auto *column = pageColumn(contents);
    column->addWidget(tabs, 1);
    column->addWidget(buttons);
    setWidget(contents);

    fillDictionaries(preferences.dictionaries);
    m_checksSpelling->setChecked(preferences.checksSpelling);
    m_sendsTyping->setChecked(preferences.sendsTyping);
    m_showsBalloons->setChecked(preferences.showsBalloons);
    m_shakes->setChecked(preferences.shakes);
    setMinimumSize(sizeHint()); // on small screens, too
}

PreferencesDialog::~PreferencesDialog() = default;

QWidget *PreferencesDialog::createChatPage()
{
    auto *page = new QWidget;
    QVBoxLayout *column = pageColumn(page);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Dictionaries:"), m_dictionaries);
    column->addWidget(m_checksSpelling);
    column->addLayout(form);
    column->addSpacing(kGap);
    column->addWidget(m_sendsTyping);
    column->addStretch();
    const bool canCheck = ombrin::OmSpelling::instance()->isAvailable();
    m_checksSpelling->setEnabled(canCheck);
    m_dictionaries->setEnabled(canCheck);
    return page;
}

QWidget *PreferencesDialog::createMessagesPage()
{
    auto *page = new QWidget;
    QVBoxLayout *column = pageColumn(page);
    column->addWidget(m_showsBalloons);
    column->addWidget(m_shakes);
    column->addStretch();
    return page;
}

void PreferencesDialog::fillDictionaries(const QString &chosen)
{
    const QString current = chosen.isEmpty() ? ombrin::OmSpelling::instance()->dict() : chosen;
    QStringList choices = ombrin::OmSpelling::instance()->availDicts();
    const QStringList two = {QStringLiteral("en_US"), QStringLiteral("de_DE")};
    if (choices.contains(two.first()) && choices.contains(two.last()))
        choices.prepend(two.join(QLatin1Char(',')));
    for (const QString &codes : std::as_const(choices))
        m_dictionaries->addItem(dictionaryNames(codes), codes);
    m_dictionaries->setCurrentIndex(qMax(0, m_dictionaries->findData(current)));
}

Preferences PreferencesDialog::preferences() const
{
    Preferences chosen;
    chosen.checksSpelling = m_checksSpelling->isChecked();
    chosen.dictionaries = m_dictionaries->currentData().toString();
    chosen.sendsTyping = m_sendsTyping->isChecked();
    chosen.showsBalloons = m_showsBalloons->isChecked();
    chosen.shakes = m_shakes->isChecked();
    return chosen;
}

} // namespace messenger
