#include "markdown.h"

#include "testfiles.h"

#include <QFile>

namespace {

const QByteArray fence = QByteArrayLiteral("```");

} // namespace

QVector<MarkdownBlock> blocksIn(const QByteArray &markdown)
{
    QVector<MarkdownBlock> blocks;
    bool isInside = false;
    int line = 0;
    for (const QByteArray &text : markdown.split('\n')) {
        ++line;
        if (text.startsWith(fence)) {
            isInside = !isInside;
            if (isInside) {
                blocks.append({text.mid(fence.size()).trimmed(), {}, line});
            }
        } else if (isInside) {
            blocks.last().text += text + '\n';
        }
    }
    return blocks;
}

QByteArray firstBlockIn(const QByteArray &markdown, const QByteArray &language)
{
    for (const MarkdownBlock &block : blocksIn(markdown)) {
        if (block.language == language) {
            return block.text;
        }
    }
    return {};
}

QByteArray guidePageText(const QString &name)
{
    QFile page(inTree("docs/guide/" + name));
    return page.open(QIODevice::ReadOnly) ? page.readAll() : QByteArray();
}
