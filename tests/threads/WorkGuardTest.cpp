#include "WorkGuard.h"

#include <thread>

#include "CallbackList.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

// A modal dialog whose only hope is a thread: its third call ends it.
class WorkGuardTest : public DialogTest {
 protected:
  int RunWithCalls(int calls) {
    ScriptedDialog& dialog = Scripted(FormXml("", 300, 200));
    list_.Connect(&dialog, [&](int n) {
      if (n == 3) dialog.Done(Dialog::Accepted);
    });
    std::thread worker;
    dialog.initialize = [&] {
      worker = std::thread([guard = WorkGuard(), send = list_.GetSender(), calls] {
        for (int n = 1; n <= calls; ++n) {
          for (int i = 0; i < 1000; ++i) std::this_thread::yield();
          send(n);
        }
      });
      return true;
    };
    const int result = dialog.DoModal();
    worker.join();
    return result;
  }

  CallbackList<int> list_;
};

TEST_F(WorkGuardTest, ADialogWaitsForTheThreadAndIsClosedWithoutMoreWork) {
  EXPECT_EQ(RunWithCalls(3), Dialog::Accepted);
  EXPECT_EQ(RunWithCalls(2), Dialog::Rejected);
}

}  // namespace
}  // namespace Wexa
