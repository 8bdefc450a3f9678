#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Headless Chromium with a profile of its own, to see a page as a reader does. Each call loads the
/// page again. A failure ends the test program with a sentence.
class Browser {
public:
    /// The page's elements as the browser understood them.
    QString dom(const QString &page);
    /// A picture of the page's beginning.
    QImage picture(const QString &page, int width, int height);
    /// The page as it is printed: a PDF file's content.
    QByteArray print(const QString &page);

private:
    QByteArray run(const QString &page, const QStringList &options);
    QByteArray runToFile(const QString &page, const QString &option, const QString &suffix,
                         const QStringList &options);

    QTemporaryDir m_profile;
};
