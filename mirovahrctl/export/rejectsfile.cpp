#include "mirovahrctl/export/rejectsfile.h"

RejectsFile::RejectsFile(const QString &path, const QString &exportName)
    : m_file(path)
    , m_text(m_file, exportName)
{
}

bool RejectsFile::open()
{
    if (!m_file.open(QIODevice::WriteOnly))
        return false;
    m_text.begin();
    return true;
}

bool RejectsFile::commit()
{
    m_text.end();
    return m_file.commit();
}
