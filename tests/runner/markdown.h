#pragma once

#include <QByteArray>
#include <QVector>

/// A fenced block of a Markdown text.
struct MarkdownBlock
{
    /// What stands behind the opening fence, such as "sh"; may be empty.
    QByteArray language;
    QByteArray text;
    /// Of the opening fence, from 1.
    int line = 0;
};

/// The fenced blocks of a Markdown text, in their order.
QVector<MarkdownBlock> blocksIn(const QByteArray &markdown);

/// The first block in that language; empty if there is none.
QByteArray firstBlockIn(const QByteArray &markdown, const QByteArray &language);

/// The text of a page of the guide in the tree, by its file name.
QByteArray guidePageText(const QString &name);
