#pragma once

#include <QtCore/QtGlobal>
#include <QtGui/QTextBlock>

#include <memory>
#include <unordered_map>
#include <vector>

namespace ombrin {

/// Knows which paragraphs of a document hold which words, which it tells apart by their hashes.
///
/// What it knows of a paragraph is that paragraph's user data, and goes with it.
class WordIndex : public std::enable_shared_from_this<WordIndex>
{
public:
    /// Enters what \a paragraph now holds. A paragraph with user data of someone else is left out.
    void update(QTextBlock paragraph, std::vector<quint32> words);

    /// Whether every paragraph of \a document is entered.
    bool isComplete(const QTextDocument *document) const;

    std::vector<QTextBlock> paragraphsWith(quint32 word) const;

private:
    class Entry;

    void insert(quint32 word, Entry *entry);
    void remove(quint32 word, Entry *entry);

    std::unordered_map<quint32, std::vector<Entry *>> m_entries;
    int m_count = 0;
};

} // namespace ombrin
