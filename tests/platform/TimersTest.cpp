#include <gtest/gtest.h>

#include <vector>

#include "Timers.h"

namespace {

std::vector<std::uintptr_t> fired;

void Record(void*, unsigned, std::uintptr_t id, unsigned long) { fired.push_back(id); }

void KillSelf(void* window, unsigned, std::uintptr_t id, unsigned long) {
  fired.push_back(id);
  platform::KillTimer(window, id);
}

class TimersTest : public testing::Test {
 protected:
  void SetUp() override { fired.clear(); }
  void TearDown() override {
    for (auto id : ids_) platform::KillTimer(nullptr, id);
  }
  std::uintptr_t Start(std::uintptr_t requested, unsigned ms, platform::TimerProc proc) {
    ids_.push_back(platform::SetTimer(nullptr, requested, ms, proc));
    return ids_.back();
  }
  std::vector<std::uintptr_t> ids_;
};

}  // namespace

TEST_F(TimersTest, WindowlessTimerGetsAnIdOfTheSystemSoKillingTheRequestedIdStopsNothing) {
  auto id = Start(1, 100, Record);
  EXPECT_NE(id, 1u);
  EXPECT_FALSE(platform::KillTimer(nullptr, 1));
  EXPECT_TRUE(platform::FindTimer(id, nullptr));
  auto second = Start(1, 100, Record);
  EXPECT_NE(second, id) << "a second timer with the same requested id is a second timer";
}

TEST_F(TimersTest, RepeatingTimerFiresEachPeriodUntilKilled) {
  auto start = platform::TimerClock::now();
  auto id = Start(1, 1000, Record);
  EXPECT_EQ(platform::RunDueTimers(start), 0);
  EXPECT_EQ(platform::RunDueTimers(start + std::chrono::milliseconds(1100)), 1);
  EXPECT_EQ(platform::RunDueTimers(start + std::chrono::milliseconds(1200)), 0);
  EXPECT_EQ(platform::RunDueTimers(start + std::chrono::milliseconds(2200)), 1);
  EXPECT_TRUE(platform::KillTimer(nullptr, id));
  EXPECT_EQ(platform::RunDueTimers(start + std::chrono::hours(1)), 0);
  EXPECT_EQ(fired, (std::vector<std::uintptr_t>{id, id}));
}

TEST_F(TimersTest, TimerThatKillsItselfWithItsOwnIdRunsOnce) {
  auto start = platform::TimerClock::now();
  auto id = Start(2, 2000, KillSelf);
  platform::RunDueTimers(start + std::chrono::seconds(3));
  platform::RunDueTimers(start + std::chrono::seconds(10));
  EXPECT_EQ(fired, (std::vector<std::uintptr_t>{id}));
  EXPECT_FALSE(platform::FindTimer(id, nullptr));
}
