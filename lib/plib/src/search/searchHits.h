#pragma once

#include <QHash>
#include <QStringList>

#include <vector>

namespace plib {

/// Returns the distinct words of a search text, prepared for SearchedText::contains(). Only the
/// first 32 words are used.
QStringList searchWords(const QString& text);

/// A caption or a row text that is searched for words. Upper and lower case are equal. A word
/// without accents also finds letters with accents. Umlauts can be typed as such or as "ae", "oe"
/// and "ue"; a typed umlaut does not find the plain vowel.
class SearchedText
{
public:
    explicit SearchedText(const QString& text);

    bool contains(const QString& word) const;
    /// Returns a bit for each of the words, starting with the lowest bit, that the text contains.
    quint32 wordsIn(const QStringList& words) const;

private:
    QString m_plain;       ///< without accents: "o" for an umlaut
    QString m_transcribed; ///< with "oe" for an umlaut; null if it is the same as m_plain
};

/// The part of a plot that a search has found.
template <typename Node>
struct PlotHits
{
    Node* plot;
    bool isWhole;          ///< the plot itself was found, with all of its rows
    std::vector<int> rows; ///< indices of the rows that were found, if not the whole plot
};

/// Searches the plots of an output tree and their rows. An item is found if each word occurs in its
/// text or in one of the captions above it. Texts are read once and prepared once, even if they are
/// shared by the rows of several plots. Therefore, the index must be recreated after items or texts
/// have changed. Check states are read by each search. `Node` must have the members of OutputNode.
template <typename Node>
class SearchIndex
{
public:
    /// Indexes the plots in the third level below the root.
    explicit SearchIndex(Node* root)
    {
        for (int i = 0; i < root->childCount(); ++i)
            for (int j = 0; j < root->child(i)->childCount(); ++j)
                addPlots(root->child(i), root->child(i)->child(j));
    }

    /// Returns the plots of which at least one part was found, in the order of the tree. If
    /// `checkedOnly` is true, finds only checked rows, and checked plots without rows.
    std::vector<PlotHits<Node>> find(const QStringList& words, bool checkedOnly)
    {
        m_words = words;
        for (RowText& row : m_rowTexts)
            row.words = row.searched.wordsIn(words);
        const quint32 all = words.isEmpty() ? 0 : ~quint32(0) >> (32 - words.size());
        std::vector<PlotHits<Node>> found;
        for (Plot& plot : m_plots) {
            PlotHits<Node> hits{plot.node, false, {}};
            addHits(plot, all & ~plot.path.wordsIn(words), checkedOnly, &hits);
            if (hits.isWhole || !hits.rows.empty())
                found.push_back(std::move(hits));
        }
        return found;
    }

private:
    struct Plot
    {
        Node* node;
        SearchedText path;
        std::vector<size_t> rowTexts; ///< by row: the index of its text; empty until it is needed
    };

    void addPlots(Node* top, Node* second)
    {
        const QString captions = top->text(0) + QLatin1Char('\n') + second->text(0);
        for (int i = 0; i < second->childCount(); ++i) {
            Node* plot = second->child(i);
            m_plots.push_back(
                {plot, SearchedText(captions + QLatin1Char('\n') + plot->text(0)), {}});
        }
    }

    /// `missing` are the words that do not occur in the captions of the plot.
    void addHits(Plot& plot, quint32 missing, bool checkedOnly, PlotHits<Node>* hits)
    {
        const int count = plot.node->childCount();
        const Qt::CheckState state = plot.node->checkState(0);
        if (checkedOnly && state == Qt::Unchecked)
            return;
        hits->isWhole = !missing && (!checkedOnly || state == Qt::Checked);
        if (hits->isWhole || count == 0)
            return;
        if (missing)
            readRowTexts(plot);
        for (int row = 0; row < count; ++row) {
            const quint32 words = missing ? m_rowTexts[plot.rowTexts[size_t(row)]].words : 0;
            if (!(missing & ~words) &&
                (!checkedOnly || plot.node->child(row)->checkState(0) == Qt::Checked))
                hits->rows.push_back(row);
        }
    }

    void readRowTexts(Plot& plot)
    {
        if (!plot.rowTexts.empty())
            return;
        const int count = plot.node->childCount();
        plot.rowTexts.reserve(size_t(count));
        for (int row = 0; row < count; ++row)
            plot.rowTexts.push_back(rowTextIndex(plot.node->child(row)->text(0)));
    }

    /// Plots have the same rows in the same order, so the text after the previous one is tried
    /// before the hash table.
    size_t rowTextIndex(const QString& text)
    {
        if (++m_lastRowText < m_rowTexts.size() && m_rowTexts[m_lastRowText].text == text)
            return m_lastRowText;
        int& place = m_rowTextPlaces[text];
        if (place == 0) {
            const SearchedText searched(text);
            m_rowTexts.push_back({text, searched, searched.wordsIn(m_words)});
            place = int(m_rowTexts.size());
        }
        m_lastRowText = size_t(place) - 1;
        return m_lastRowText;
    }

    struct RowText
    {
        QString text;
        SearchedText searched;
        quint32 words; ///< the words of the current search that it contains
    };

    std::vector<Plot> m_plots;
    std::vector<RowText> m_rowTexts;     // the distinct texts of all rows
    QHash<QString, int> m_rowTextPlaces; // positions in m_rowTexts, starting at 1
    size_t m_lastRowText = size_t(-1);
    QStringList m_words; // of the current search
};

} // namespace plib
