// The main timer's tick allocates nothing: it runs ten times a second for the life of the
// window. Every allocation of the program is counted, so this test has a binary of its own.
#include <QtTest>
#include <atomic>
#include <cstdlib>

#include "MainWindow.h"
#include "TemporaryUserHome.h"
#include "session/Program.h"
#include "settings/MemorySettingsStore.h"

namespace {
std::atomic<long> allocations{0};
}  // namespace

// Every allocation is counted where it lands: Qt's strings and containers call malloc, and
// so does operator new. glibc keeps its own entry points beside the ones replaced here.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* p, std::size_t size);
void* malloc(std::size_t size) {
  ++allocations;
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
  ++allocations;
  return __libc_calloc(count, size);
}
void* realloc(void* p, std::size_t size) {
  ++allocations;
  return __libc_realloc(p, size);
}
}

class TestUpdateCommands : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:
  void aHundredTicksAllocateNothing() {
    qv::MemorySettingsStore store;
    qv::MainWindow w(store);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    w.Load();
    w.app().cGamePlay.PlayNumber("Spider", qv::GameNo::Number(5));
    w.UpdateCommands();  // the states change once after the deal
    const long before = allocations;
    for (int i = 0; i < 100; ++i) w.UpdateCommands();
    QCOMPARE(allocations - before, 0L);
  }
};

QTEST_MAIN(TestUpdateCommands)
#include "test_update_commands.moc"
