// SPDX-License-Identifier: MIT
// renderhelp INPUT.md OUTPUT.pdf: lays out a help document, written in Markdown, as a PDF with A4 pages.
#include <QBuffer>
#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const QString &strFile, const QString &strReason)
{
    std::fprintf(stderr, "renderhelp: %s: %s\n", qUtf8Printable(strFile), qUtf8Printable(strReason));
    std::exit(1);
}

QString read(const QString &strFile)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
        fail(strFile, file.errorString());
    return QString::fromUtf8(file.readAll());
}

// Gives the tables thin lines, padding and the full width of the text.
void dressTables(const QTextDocument &document)
{
    const auto frames = document.rootFrame()->childFrames();
    for (QTextFrame *pFrame : frames) {
        auto *pTable = qobject_cast<QTextTable *>(pFrame);
        if (!pTable)
            continue;
        QTextTableFormat format = pTable->format();
        format.setBorder(0.5);
        format.setBorderBrush(QColor(0xb0, 0xb0, 0xb0));
        format.setBorderCollapse(true);
        format.setCellPadding(4);
        format.setTopMargin(6);
        format.setBottomMargin(6);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        pTable->setFormat(format);
    }
}

// Adds space above headings, and below headings and paragraphs but not list items.
void spaceBlocks(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() > 0) {
            format.setTopMargin(format.headingLevel() == 1 ? 0 : 14);
            format.setBottomMargin(6);
        } else if (!block.textList()) {
            format.setBottomMargin(6);
        }
        QTextCursor(block).setBlockFormat(format);
    }
}

// Prints into memory, because QPdfWriter does not tell whether writing a file has failed.
QByteArray printed(const QTextDocument &document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle(document.firstBlock().text());
    document.print(&writer);
    return buffer.data();
}

// A full disk may take the first part of the content; only the attempt to write the rest fails then.
bool writeAll(QIODevice *pOutput, const QByteArray &content)
{
    qint64 nDone = 0;
    while (nDone < content.size()) {
        const qint64 nWritten = pOutput->write(content.constData() + nDone, content.size() - nDone);
        if (nWritten <= 0)
            return false;
        nDone += nWritten;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    if (files.size() != 2)
        fail(QStringLiteral("INPUT.md OUTPUT.pdf"), QStringLiteral("expected these two"));

    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("sans-serif"), 10));
    document.setMarkdown(read(files.first()));
    if (document.isEmpty())
        fail(files.first(), QStringLiteral("nothing in it"));
    dressTables(document);
    spaceBlocks(document);

    QSaveFile output(files.last());
    if (!output.open(QIODevice::WriteOnly) || !writeAll(&output, printed(document)) || !output.commit())
        fail(files.last(), output.errorString());
    return 0;
}
