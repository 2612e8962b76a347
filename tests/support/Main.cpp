// The main of every test program but the window's and the golden one.
#include <gtest/gtest.h>

#include "UsersLocale.h"

int main(int argc, char** argv) {
  vrek::test::TakeUsersLocale();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
