#include "DocumentReader.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace ormiva::testing {

DocumentReader::DocumentReader(const QByteArray& pdf)
    : m_path(m_folder.write(u"document.pdf"_qs, pdf)) {
    QProcess check;
    check.setProcessChannelMode(QProcess::MergedChannels);
    check.start(u"qpdf"_qs, {u"--check"_qs, m_path});
    check.waitForFinished();
    QStringList findings = QString::fromUtf8(check.readAll()).split(u'\n').filter(u"WARNING"_qs);
    // Cairo names a picture twice among a page's when it is drawn twice, as emoji are; both mean the same.
    findings.removeIf([](const QString& line) { return line.contains(u"duplicated key /x"); });
    EXPECT_EQ(findings, QStringList());
    EXPECT_NE(check.exitCode(), 2);
}

QByteArray DocumentReader::run(const QString& tool, const QStringList& arguments) const {
    QProcess process;
    process.start(tool, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
        << tool.toStdString() << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QString DocumentReader::info(const QString& label) const {
    for (const QString& line : QString::fromUtf8(run(u"pdfinfo"_qs, {u"-isodates"_qs, m_path})).split(u'\n'))
        if (line.startsWith(label + u':'))
            return line.mid(label.size() + 1).trimmed();
    return {};
}

QString DocumentReader::text(int page) const {
    QStringList arguments = {u"-raw"_qs, u"-enc"_qs, u"UTF-8"_qs};
    if (page > 0)
        arguments += {u"-f"_qs, QString::number(page), u"-l"_qs, QString::number(page)};
    return QString::fromUtf8(run(u"pdftotext"_qs, arguments + QStringList{m_path, u"-"_qs})).simplified();
}

QStringList DocumentReader::lines(int page) const {
    QStringList arguments = {u"-raw"_qs, u"-nopgbrk"_qs, u"-enc"_qs, u"UTF-8"_qs};
    if (page > 0)
        arguments += {u"-f"_qs, QString::number(page), u"-l"_qs, QString::number(page)};
    return QString::fromUtf8(run(u"pdftotext"_qs, arguments + QStringList{m_path, u"-"_qs}))
        .trimmed()
        .split(u'\n');
}

QStringList DocumentReader::fonts() const {
    QStringList names;
    for (const QString& line : QString::fromUtf8(run(u"pdffonts"_qs, {m_path})).split(u'\n').mid(2))
        if (!line.isEmpty())
            names.append(line.section(u' ', 0, 0).section(u'+', -1));
    names.removeDuplicates();
    names.sort();
    return names;
}

QString DocumentReader::content(int page) const {
    const QString one = m_folder.file(u"page.pdf"_qs);
    run(u"qpdf"_qs, {m_path, u"--pages"_qs, m_path, QString::number(page), u"--"_qs, u"--qdf"_qs,
                     u"--object-streams=disable"_qs, one});
    return QString::fromLatin1(m_folder.read(u"page.pdf"_qs));
}

QRectF DocumentReader::word(int page, const QString& word) const {
    const QByteArray xml = run(u"pdftotext"_qs, {u"-bbox"_qs, u"-f"_qs, QString::number(page), u"-l"_qs,
                                                 QString::number(page), m_path, u"-"_qs});
    static const QRegularExpression entry(
        u"<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"_qs);
    for (const QRegularExpressionMatch& match : entry.globalMatch(QString::fromUtf8(xml)))
        if (match.captured(5) == word)
            return {QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()),
                    QPointF(match.captured(3).toDouble(), match.captured(4).toDouble())};
    return {};
}

QStringList DocumentReader::links() const {
    QStringList links;
    for (const QString& line :
         QString::fromUtf8(run(u"pdfinfo"_qs, {u"-url"_qs, m_path})).split(u'\n').mid(1))
        if (!line.isEmpty())
            links.append(line.section(u' ', -1));
    return links;
}

QStringList DocumentReader::outline() const {
    const QByteArray json = run(u"qpdf"_qs, {u"--json"_qs, u"--json-key=outlines"_qs, m_path});
    QStringList titles;
    for (const QJsonValue& entry : QJsonDocument::fromJson(json).object()[u"outlines"].toArray())
        titles.append(entry.toObject()[u"title"].toString());
    return titles;
}

QStringList DocumentReader::pictures() const {
    QStringList pictures;
    for (const QString& line :
         QString::fromUtf8(run(u"pdfimages"_qs, {u"-list"_qs, m_path})).split(u'\n').mid(2)) {
        const QStringList columns = line.simplified().split(u' ');
        if (columns.size() > 8)
            pictures.append((columns.mid(3, 2) + QStringList{columns.at(8)}).join(u' '));
    }
    return pictures;
}

QImage DocumentReader::picture(int page, int dpi) const {
    const QString stem = m_folder.file(u"picture"_qs);
    run(u"pdftoppm"_qs, {u"-png"_qs, u"-singlefile"_qs, u"-r"_qs, QString::number(dpi), u"-f"_qs,
                         QString::number(page), m_path, stem});
    return QImage(stem + u".png"_qs);
}

} // namespace ormiva::testing
