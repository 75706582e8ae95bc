#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "TestProgram.h"
#include "session/SavedGameFile.h"

// The real program with a home of its own, stopped as a logout stops it and killed as a
// crash would end it: the game on the table comes back at the next start, where it was.
class TestRestart : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir home_;
  QProcess program_;

  QString UnfinFile() const { return home_.filePath("data/Velmarin Works/Quorvale 6.0/Unfin.vq0"); }
  QString Settings() const {
    QFile f(home_.filePath("config/Quorvale/6.0/quorvale.ini"));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
  }
  std::optional<qv::GameHeader> Unfinished() const { return qv::ReadGameHeader(UnfinFile().toStdString()); }
  QDateTime UnfinWritten() const { return QFileInfo(UnfinFile()).lastModified(); }

  void Start(const QStringList& args = {}) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", home_.path());
    env.insert("XDG_CONFIG_HOME", home_.filePath("config"));
    env.insert("XDG_DATA_HOME", home_.filePath("data"));
    env.insert("QT_QPA_PLATFORM", "offscreen");
    program_.setProcessEnvironment(env);
    program_.start(QUORVALE_APP, args);
    QVERIFY(program_.waitForStarted());
  }
  // The game is dealt or rebuilt once the program keeps it: its file is written anew.
  void WaitForTheGameKept(const QDateTime& before) {
    QTRY_VERIFY_WITH_TIMEOUT(Settings().contains("UnFin=1") && UnfinWritten() != before, 20000);
  }
  void Stop(bool kill) {
    kill ? program_.kill() : program_.terminate();
    QVERIFY(program_.waitForFinished(10000));
    QCOMPARE(program_.exitStatus(), kill ? QProcess::CrashExit : QProcess::NormalExit);
  }

 private slots:
  void theGameComesBackAfterAStopAndAfterAKill() {
    QVERIFY(home_.isValid());
    // A game with a row played, given on the command line.
    const QString saved = home_.filePath("row.vq0");
    {
      qv::test::TestProgram t;
      t.Deal("Spider Two Suit", 31);
      qv::test::DealRows(t, 1);
      QVERIFY(t->cEngine.SavetoFile(saved.toStdString()));
    }
    Start({saved});
    WaitForTheGameKept({});
    Stop(true);
    QVERIFY(Settings().contains("SessionRunning=1"));  // the crash left its mark

    const QDateTime killed = UnfinWritten();
    Start();
    WaitForTheGameKept(killed);
    auto kept = Unfinished();
    QVERIFY(kept.has_value());
    QCOMPARE(kept->GameName, std::string("Spider Two Suit"));
    QCOMPARE(kept->GameNo.Text(), std::string("31"));
    QCOMPARE(kept->Moves, 10);  // at its last step
    Stop(false);
    QVERIFY(Settings().contains("SessionRunning=0"));
    QVERIFY(Settings().contains("UnFin=1"));

    const QDateTime stopped = UnfinWritten();
    Start();
    WaitForTheGameKept(stopped);
    Stop(false);
    kept = Unfinished();
    QVERIFY(kept.has_value());
    QCOMPARE(kept->GameNo.Text(), std::string("31"));
    QCOMPARE(kept->Moves, 10);
  }
};

QTEST_MAIN(TestRestart)
#include "test_restart.moc"
