#include "tests/support/programrun.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// Which steps scripts/nightly runs, in a project whose steps do nothing.
class TestNightly : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void onlyTheNamedStepsAreRun();
    void aStepThatFailsDoesNotKeepTheOthersFromRunning();
    void anUnknownStepIsAnsweredWithTheKnownOnes();

private:
    void run(ProgramRun &night, const QStringList &steps) const;
    void putStep(const QString &path, int status) const;

    QTemporaryDir m_project;
};

void TestNightly::run(ProgramRun &night, const QStringList &steps) const
{
    QVERIFY2(night.run(m_project.filePath("scripts/nightly"), steps), night.report().constData());
}

/// A program that prints its name and ends with this status.
void TestNightly::putStep(const QString &path, int status) const
{
    QFile file(m_project.filePath(path));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QString("#!/bin/sh\necho %1 runs\nexit %2\n").arg(path).arg(status).toUtf8());
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void TestNightly::initTestCase()
{
    QVERIFY(QDir(m_project.path()).mkpath("scripts/lib"));
    for (const char *file : {"scripts/nightly", "scripts/lib/common.sh"})
        QVERIFY(QFile::copy(QStringLiteral(PROJECT_FOLDER "/") + file, m_project.filePath(file)));
    putStep("scripts/cluster", 0);
    putStep("scripts/random-hosts", 1);
    putStep("scripts/mutants", 0);
}

void TestNightly::onlyTheNamedStepsAreRun()
{
    ProgramRun night;
    run(night, {"mutants", "clusters"});
    COMPARE_STATUS(night, 0);
    QCOMPARE(night.output().count(" runs\n"), 2);
    const int clusters = night.output().indexOf("scripts/cluster runs\n");
    const int mutants = night.output().indexOf("scripts/mutants runs\n");
    QVERIFY2(clusters >= 0 && clusters < mutants, night.report().constData());
}

void TestNightly::aStepThatFailsDoesNotKeepTheOthersFromRunning()
{
    ProgramRun night;
    run(night, {"hosts", "mutants"});
    COMPARE_STATUS(night, 1);
    QVERIFY(night.output().contains(QRegularExpression("FAILS +\\d+ s +hosts +Random hosts\n")));
    QVERIFY(night.output().contains(QRegularExpression("holds +\\d+ s +mutants +Mutants\n")));
    QCOMPARE(night.errors(), QString("nightly: 1 of 2 steps fail\n"));
}

void TestNightly::anUnknownStepIsAnsweredWithTheKnownOnes()
{
    ProgramRun night;
    run(night, {"mutants", "mutant"});
    COMPARE_STATUS(night, 2);
    QCOMPARE(night.output(), QString());
    QVERIFY2(night.errors().endsWith(" bench mutants\n"), night.report().constData());
}

QTEST_GUILESS_MAIN(TestNightly)
#include "tst_nightly.moc"
