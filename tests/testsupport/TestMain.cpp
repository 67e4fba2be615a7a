#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
    // Like the designer, whose toolkit takes the locale from the environment
    // at start: the suite runs once more under a comma-decimal locale.
    std::setlocale(LC_ALL, "");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
