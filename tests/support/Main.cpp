// Runs the tests under the environment's own locale, as many hosts do: with LC_ALL naming a
// language with a decimal comma, every test checks that nothing depends on LC_NUMERIC.

#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
