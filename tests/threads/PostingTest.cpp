#include <atomic>
#include <thread>

#include "CallbackList.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

constexpr int kThreads = 8;
constexpr int kCallsOfEach = 500;

// Eight threads that work while the user-interface thread goes on.
class PostingTest : public FormTest {
 protected:
  PostingTest() {
    Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
    list_->Connect(dialog_.get(), [this](int n) { sum_ += n; });
  }

  template <typename Work>
  void Start(Work work) {
    for (int i = 0; i < kThreads; ++i)
      threads_.emplace_back([this, work] {
        for (int n = 0; n < kCallsOfEach; ++n) {
          work();
          ++posted_;
        }
      });
  }

  void PumpUntil(int posted) {
    while (posted_ < posted) Robot::PumpAll();
  }

  void Finish() {
    for (std::thread& thread : threads_) thread.join();
    Robot::PumpAll();
  }

  std::unique_ptr<CallbackList<int>> list_ = std::make_unique<CallbackList<int>>();
  std::vector<std::thread> threads_;
  std::atomic<int> posted_ = 0;
  int sum_ = 0;
};

TEST_F(PostingTest, EveryCallOfEveryThreadArrivesOnce) {
  Start([send = list_->GetSender()] { send(1); });
  PumpUntil(kThreads * kCallsOfEach);
  Finish();
  EXPECT_EQ(sum_, kThreads * kCallsOfEach);
}

TEST_F(PostingTest, AListMayDieWhileThreadsPost) {
  Start([send = list_->GetSender()] { send(1); });
  PumpUntil(kCallsOfEach);
  list_.reset();
  const int before = sum_;
  Finish();
  EXPECT_LE(sum_, before + kThreads) << "at most those that were being posted";
}

TEST_F(PostingTest, AReceiverMayDieWhileThreadsPost) {
  Start([send = list_->GetSender()] { send(1); });
  PumpUntil(kCallsOfEach);
  dialog_.reset();
  const int before = sum_;
  Finish();
  EXPECT_EQ(sum_, before);
}

TEST_F(PostingTest, ConnectionsMayChangeWhileThreadsPost) {
  Start([send = list_->GetSender()] { send(1); });
  while (posted_ < kThreads * kCallsOfEach) {
    ScopedConnection connection(*list_, list_->Connect(dialog_.get(), [](int) {}));
    Robot::PumpAll();
  }
  Finish();
  EXPECT_EQ(sum_, kThreads * kCallsOfEach);
}

TEST_F(PostingTest, CallsAreDroppedWithTheirOwner) {
  Start([this] {
    auto call = std::make_shared<DeferredCall>();
    call->call = [] { FAIL(); };
    PostDeferredCall(dialog_.get(), call);
  });
  Finish();
  EXPECT_EQ(sum_, 0);
}

}  // namespace
}  // namespace Wexa
