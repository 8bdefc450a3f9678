#include "mirovahrctl/gatestate/gatecopies.h"

#include "mirovahrctl/gatestate/gatefolder.h"

#include <QRegularExpression>

namespace {

QString copyName(const QDateTime &time)
{
    return QStringLiteral("admitted-%1.data")
        .arg(time.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")));
}

} // namespace

QString GateCopies::lastAdmitted()
{
    return QStringLiteral("admitted.data");
}

bool GateCopies::add(const QString &fileName, const QDateTime &time)
{
    // Two files within a second: the later name keeps their order.
    QDateTime free = time;
    bool exists = false;
    while (!m_folder.link(fileName, copyName(free), exists)) {
        if (!exists)
            return false;
        free = free.addSecs(1);
    }
    return true;
}

bool GateCopies::prune(qint64 keep)
{
    const auto names = m_folder.names();
    if (!names)
        return false;
    static const QRegularExpression form(
        QStringLiteral("\\Aadmitted-[0-9]{8}T[0-9]{6}Z\\.data\\z"));
    const QStringList copies = names->filter(form);
    for (qint64 i = 0; i < copies.size() - keep; ++i) {
        if (!m_folder.remove(copies.at(int(i))))
            return false;
    }
    return true;
}
