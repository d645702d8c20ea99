#include "HelpDocument.h"

#include "VLKHelp.h"

#include <QTextCursor>
#include <QTextDocument>

namespace ormiva {

namespace {

// In pixels before any zoom.
constexpr double paragraphSize = 13.5;
constexpr double headingSize = 15;
constexpr double gap = 7;
constexpr double moreAboveHeading = 6;
constexpr double bulletWidth = 6;
constexpr double besideBullet = 8;
constexpr double lineHeightPercent = 118;

QTextBlockFormat blockFormat(VLKHelp::Block::Kind kind, bool first) {
    using Kind = VLKHelp::Block::Kind;
    QTextBlockFormat format;
    format.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
    if (!first)
        format.setTopMargin(gap + (kind == Kind::heading ? moreAboveHeading : 0));
    if (kind == Kind::heading)
        format.setHeadingLevel(2);
    if (kind == Kind::bullet) {
        // The rest of the line hangs behind its bullet, wrapped lines too.
        format.setLeftMargin(bulletWidth + besideBullet);
        format.setTextIndent(-(bulletWidth + besideBullet));
        format.setTabPositions({QTextOption::Tab(bulletWidth + besideBullet, QTextOption::LeftTab)});
    }
    return format;
}

} // namespace

void HelpDocument::setDocument(QQuickTextDocument* document) {
    m_document = document;
    write();
}

void HelpDocument::setBody(const QString& body) {
    if (m_body == body)
        return;
    m_body = body;
    Q_EMIT bodyChanged();
    write();
}

void HelpDocument::write() {
    if (!m_document)
        return;
    QTextDocument& document = *m_document->textDocument();
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);

    QTextCharFormat paragraph;
    paragraph.setFontPointSize(paragraphSize * m_pointsPerPixel);
    QTextCharFormat heading;
    heading.setFontPointSize(headingSize * m_pointsPerPixel);
    heading.setFontWeight(QFont::Bold);

    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    bool first = true;
    for (const VLKHelp::Block& block : VLKHelp::blocks(m_body)) {
        const QTextBlockFormat format = blockFormat(block.kind, first);
        if (first)
            cursor.setBlockFormat(format);
        else
            cursor.insertBlock(format);
        first = false;
        const bool bullet = block.kind == VLKHelp::Block::Kind::bullet;
        cursor.insertText((bullet ? QStringLiteral("•\t") : QString()) + block.text,
                          block.kind == VLKHelp::Block::Kind::heading ? heading : paragraph);
    }
    cursor.endEditBlock();
}

} // namespace ormiva
