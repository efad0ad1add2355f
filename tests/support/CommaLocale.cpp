#include "CommaLocale.h"

#include <gtest/gtest.h>

#include <clocale>

CommaLocale::CommaLocale() : previousC_(std::setlocale(LC_ALL, nullptr)), previousCpp_(std::locale()) {
  constexpr const char* kName = "de_DE.UTF-8";
  if (!std::setlocale(LC_ALL, kName)) {
    ADD_FAILURE() << kName << " is not installed; scripts/setup.sh generates it";
    return;
  }
  std::locale::global(std::locale(kName));
}

CommaLocale::~CommaLocale() {
  std::locale::global(previousCpp_);
  std::setlocale(LC_ALL, previousC_.c_str());
}
