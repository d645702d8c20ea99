#pragma once

#include "Printers.h"
#include "TemporaryFolder.h"

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QStringList>

namespace ormiva::testing {

/// A finished document, read with tools that know nothing of this program.
class DocumentReader {
public:
    /// Fails the test unless qpdf finds nothing wrong with the file.
    explicit DocumentReader(const QByteArray& pdf);

    /// The value behind a label of pdfinfo, such as "Title".
    QString info(const QString& label) const;
    int pages() const { return info(u"Pages"_qs).toInt(); }
    /// All text in the order of the content, with single blanks; of one page (from 1) or of all.
    QString text(int page = 0) const;
    QStringList lines(int page = 0) const;
    /// The names of the fonts, without the tag of their subset.
    QStringList fonts() const;
    /// The drawing operations of a page, as qpdf spells them.
    QString content(int page) const;
    /// Where a word begins on a page, in points from the top left.
    QRectF word(int page, const QString& word) const;
    QStringList links() const;
    QStringList outline() const;
    /// "width height encoding" of each embedded picture.
    QStringList pictures() const;
    QImage picture(int page, int dpi = 72) const;

private:
    QByteArray run(const QString& tool, const QStringList& arguments) const;

    TemporaryFolder m_folder;
    QString m_path;
};

} // namespace ormiva::testing
