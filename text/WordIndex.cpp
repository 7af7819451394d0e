#include "text/WordIndex.h"

#include <QtGui/QTextDocument>

#include <algorithm>
#include <iterator>

namespace ombrin {

class WordIndex::Entry : public QTextBlockUserData
{
public:
    Entry(std::shared_ptr<WordIndex> owner, const QTextBlock &paragraph)
        : m_index(std::move(owner))
        , m_paragraph(paragraph)
    {
        ++m_index->m_count;
    }
    ~Entry() override
    {
        setWords({});
        --m_index->m_count;
    }

    bool isOf(const WordIndex *index) const { return m_index.get() == index; }
    QTextBlock paragraph() const { return m_paragraph; }

    // An edit changes few words of a paragraph: the others stay where they are.
    void setWords(std::vector<quint32> words)
    {
        std::sort(words.begin(), words.end());
        words.erase(std::unique(words.begin(), words.end()), words.end());
        std::vector<quint32> changed;
        std::set_difference(m_words.begin(), m_words.end(), words.begin(), words.end(),
                            std::back_inserter(changed));
        for (const quint32 word : changed)
            m_index->remove(word, this);
        changed.clear();
        std::set_difference(words.begin(), words.end(), m_words.begin(), m_words.end(),
                            std::back_inserter(changed));
        for (const quint32 word : changed)
            m_index->insert(word, this);
        m_words = std::move(words);
    }

private:
    std::shared_ptr<WordIndex> m_index;
    QTextBlock m_paragraph;
    std::vector<quint32> m_words;
};

void WordIndex::update(QTextBlock paragraph, std::vector<quint32> words)
{
    QTextBlockUserData *data = paragraph.userData();
    auto *entry = dynamic_cast<Entry *>(data);
    if (data && !entry)
        return;
    // The entry of another index is one that a highlighter of former times has left.
    if (!entry || !entry->isOf(this)) {
        entry = new Entry(shared_from_this(), paragraph);
        paragraph.setUserData(entry);
    }
    entry->setWords(std::move(words));
}

bool WordIndex::isComplete(const QTextDocument *document) const
{
    return m_count == document->blockCount();
}

std::vector<QTextBlock> WordIndex::paragraphsWith(quint32 word) const
{
    std::vector<QTextBlock> paragraphs;
    const auto found = m_entries.find(word);
    if (found == m_entries.end())
        return paragraphs;
    for (const Entry *entry : found->second)
        paragraphs.push_back(entry->paragraph());
    return paragraphs;
}

void WordIndex::insert(quint32 word, Entry *entry)
{
    m_entries[word].push_back(entry);
}

void WordIndex::remove(quint32 word, Entry *entry)
{
    const auto found = m_entries.find(word);
    std::vector<Entry *> &entries = found->second;
    *std::find(entries.begin(), entries.end(), entry) = entries.back();
    entries.pop_back();
    if (entries.empty())
        m_entries.erase(found);
}

} // namespace ombrin
