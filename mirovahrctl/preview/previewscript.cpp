#include "mirovahrctl/preview/previewscript.h"

#include <QIODevice>

namespace {

/// Characters of rows in one statement.
constexpr int kLongestInsert = 256 * 1024;

} // namespace

PreviewScript::Inserts::Inserts(const QString &table, const QString &columns, QIODevice &out)
    : m_head(QStringLiteral("INSERT INTO %1 (%2) VALUES\n").arg(table, columns))
    , m_out(out)
{
}

PreviewScript::Inserts::~Inserts()
{
    flush();
}

void PreviewScript::Inserts::add(const QString &tuple)
{
    m_tuples += m_tuples.isEmpty() ? tuple : QStringLiteral(",\n") + tuple;
    if (m_tuples.size() >= kLongestInsert)
        flush();
}

void PreviewScript::Inserts::flush()
{
    if (!m_tuples.isEmpty())
        m_out.write((m_head + m_tuples + QStringLiteral(";\n")).toUtf8());
    m_tuples.clear();
}
