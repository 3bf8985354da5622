#pragma once

#include <QDir>
#include <QList>
#include <QString>
#include <QTextDocument>

namespace borvik {

/// One page of the help.
struct HelpText {
    QString file;   ///< below the help folder, such as "rail.md"
    QString title;  ///< as the table of contents has it
    QString group;  ///< the heading above it there
};

/// The help pages: Markdown files in one folder, of which "index.md" is the table of contents. A heading of the second
/// level in it starts a group, and a list entry "- [Title](file.md)" is a page.
class HelpLibrary {
public:
    /// @param folder  where index.md is; an empty or missing folder gives a library without pages
    explicit HelpLibrary(const QString& folder);

    [[nodiscard]] const QList<HelpText>& pages() const { return pages_; }
    [[nodiscard]] const QDir& folder() const { return folder_; }

    /// Pages in which every one of the words stands, as a word or the beginning of one, in any case of letters. Best
    /// first: words in the title count most, then those that stand often.
    [[nodiscard]] QList<HelpText> search(const QString& words) const;

    /// Fills a document with a page, formulas typeset.
    /// @return false when the file can't be read
    bool show(const QString& file, QTextDocument& document) const;

private:
    QDir folder_;
    QList<HelpText> pages_;
    mutable QStringList plainTexts_;  ///< one for each page, made for the first search
};

/// Fills a document from Markdown with formulas between dollar signs.
void setManualText(QTextDocument& document, const QString& markdown);

/// Gives the pictures of a document their own size, those that are wider the given width.
/// @param folder  from which pictures are found
/// @param width   in pixels of the document; those of the screen are `density` times as many
void fitPictures(QTextDocument& document, const QDir& folder, int width, double density);

}  // namespace borvik
