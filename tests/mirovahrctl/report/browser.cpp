#include "tests/mirovahrctl/report/browser.h"

#include "tests/support/programrun.h"

#include <QFile>
#include <QStandardPaths>

namespace {

const QStringList kOptions{"--headless",
                           "--no-sandbox",
                           "--disable-gpu",
                           "--disable-quic",
                           "--disable-dev-shm-usage",
                           "--no-first-run",
                           "--disable-background-networking",
                           "--disable-component-update",
                           "--disable-sync",
                           "--hide-scrollbars"};

} // namespace

QString Browser::dom(const QString &page)
{
    return QString::fromUtf8(run(page, {"--dump-dom"}));
}

QImage Browser::picture(const QString &page, int width, int height)
{
    const QByteArray png =
        runToFile(page, "--screenshot", "png",
                  {QStringLiteral("--window-size=%1,%2").arg(width).arg(height)});
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32);
}

QByteArray Browser::print(const QString &page)
{
    return runToFile(page, "--print-to-pdf", "pdf", {});
}

QByteArray Browser::run(const QString &page, const QStringList &options)
{
    const QString program = QStandardPaths::findExecutable("chromium");
    if (program.isEmpty())
        qFatal("There is no Chromium: install the package chromium");
    ProgramRun browser;
    browser.setVariable("HOME", m_profile.path());
    const bool ended = browser.run(program,
                                   kOptions + QStringList{"--user-data-dir=" + m_profile.path()}
                                       + options + QStringList("file://" + page));
    if (!ended || browser.status() != 0)
        qFatal("Chromium failed: %s", browser.report().constData());
    return browser.output().toUtf8();
}

QByteArray Browser::runToFile(const QString &page, const QString &option, const QString &suffix,
                              const QStringList &options)
{
    QFile file(m_profile.filePath("output." + suffix));
    file.remove();
    run(page, QStringList(option + '=' + file.fileName()) + options);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Chromium wrote nothing for %s", qPrintable(option));
    return file.readAll();
}
