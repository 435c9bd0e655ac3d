// An object manager calls a provider on many threads.
#include <thread>

#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;

class ProviderThreads : public ProviderFixture {
 protected:
  ProviderThreads() { broker_.watch_lock_on_return(false); }

  // Like the fixture's, without looking at the lock, which the other thread may hold.
  Returned walk(int round) {
    Returned returned;
    const CMPIResult* result = broker_.result(returned);
    const char* list[] = {"Status", nullptr};
    CMPIStatus status{};
    if (round % 3 == 0)
      status = instances_->ft->enumerateInstances(instances_, nullptr, result,
                                                  broker_.path("VEXOR_Vsan"), nullptr);
    else if (round % 3 == 1)
      status = instances_->ft->getInstance(instances_, nullptr, result,
                                           vsan_path("2002000DEC0A1B2D"), list);
    else
      status = associations_->ft->associators(associations_, nullptr, result, fabric_path(),
                                              nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(status.rc, CMPI_RC_OK);
    return returned;
  }
};

TEST_F(ProviderThreads, TwoAtOnceGetWhatEachWouldGetAlone) {
  constexpr int kRounds = 60;
  std::vector<Texts> expected;
  for (int round = 0; round < 3; ++round)
    expected.push_back(walk(round).instances);
  EXPECT_EQ(expected[0], (Texts{kVsan1Instance, kVsan2Instance}));

  const auto work = [&](std::vector<Texts>& results, int first) {
    for (int round = first; round < first + kRounds; ++round)
      results.push_back(walk(round).instances);
  };
  std::vector<Texts> here, there;
  std::thread other([&] { work(there, 1); });
  work(here, 0);
  other.join();
  ASSERT_EQ(here.size(), static_cast<size_t>(kRounds));
  ASSERT_EQ(there.size(), static_cast<size_t>(kRounds));
  for (int round = 0; round < kRounds; ++round) {
    EXPECT_EQ(here[round], expected[round % 3]) << round;
    EXPECT_EQ(there[round], expected[(round + 1) % 3]) << round;
  }
}

}  // namespace
