#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "session/SavedGameFile.h"

// The real program, twice, with a home of its own: the game left on the table at the first
// stop comes back at the second start, where it was.
class TestRestart : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir home_;

  QString UnfinFile() const { return home_.filePath("data/Velmarin Works/Quorvale 6.0/Unfin.vq0"); }
  QString Settings() const {
    QFile f(home_.filePath("config/Quorvale/6.0/quorvale.ini"));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
  }
  // Starts the program, lets the splash go and the game come, and stops it as a logout does.
  void RunOnce(const QStringList& args = {}) {
    QProcess program;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", home_.path());
    env.insert("XDG_CONFIG_HOME", home_.filePath("config"));
    env.insert("XDG_DATA_HOME", home_.filePath("data"));
    env.insert("QT_QPA_PLATFORM", "offscreen");
    program.setProcessEnvironment(env);
    program.start(QUORVALE_APP, args);
    QVERIFY(program.waitForStarted());
    QTest::qWait(7000);  // the splash, then the deal animated frame by frame
    program.terminate();
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
  }

 private slots:
  void theUnfinishedGameComesBack() {
    QVERIFY(home_.isValid());
    RunOnce();
    QVERIFY(QFile::exists(UnfinFile()));
    QVERIFY(Settings().contains("UnFin=1"));
    const auto first = qv::ReadGameHeader(UnfinFile().toStdString());
    QVERIFY(first.has_value());

    RunOnce();
    const auto second = qv::ReadGameHeader(UnfinFile().toStdString());
    QVERIFY(second.has_value());
    QCOMPARE(second->GameName, first->GameName);
    QCOMPARE(second->GameNo.Text(), first->GameNo.Text());
    QVERIFY(second->Time >= first->Time);  // its clock went on from where it stood
    QVERIFY(Settings().contains("UnFin=1"));
  }
};

QTEST_MAIN(TestRestart)
#include "test_restart.moc"
