#include "CareDocument.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

namespace ormiva {

namespace {

constexpr double gapBetweenLines = 4;
constexpr double lineHeightPercent = 118;

QTextBlockFormat blockFormat(bool first) {
    QTextBlockFormat format;
    format.setTopMargin(first ? 0 : gapBetweenLines);
    format.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
    return format;
}

} // namespace

CareDocument::CareDocument(QObject* parent)
    : QObject(parent) {}

void CareDocument::setDocument(QQuickTextDocument* document) {
    if (m_document == document)
        return;
    m_document = document;
    Q_EMIT documentChanged();
    write();
}

void CareDocument::setText(const QString& text) {
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
    write();
}

void CareDocument::setSize(double size) {
    if (m_size == size)
        return;
    m_size = size;
    Q_EMIT sizeChanged();
    write();
}

void CareDocument::write() {
    if (!m_document)
        return;
    QTextDocument& document = *m_document->textDocument();
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    document.setIndentWidth(m_size * 1.15);

    QTextListFormat bullets;
    bullets.setStyle(QTextListFormat::ListDisc);
    bullets.setIndent(1);

    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setBlockFormat(blockFormat(true));
    QTextList* list = nullptr;
    const QList<CareLine> all = lines();
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (i > 0)
            cursor.insertBlock(blockFormat(false));
        if (!all.at(i).bullet)
            list = nullptr;
        else if (list)
            list->add(cursor.block());
        else
            list = cursor.createList(bullets);
        cursor.insertText(all.at(i).text);
    }
    cursor.endEditBlock();
}

} // namespace ormiva
