#include "runtime/app/application.h"

#include <gtest/gtest.h>

namespace {

/// Made only when tests run, so that listing them needs no window system.
class RuntimeApplication : public testing::Environment
{
public:
    void SetUp() override { tetrad::CocoaInit(); }
};

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new RuntimeApplication);
    return RUN_ALL_TESTS();
}
