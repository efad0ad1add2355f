// The process under a locale that writes numbers with a decimal comma, as a
// German or French Windows does, for the life of the object. The C locale
// (printf, atof, wcstod) and the global C++ locale (streams) both change.
#pragma once

#include <locale>
#include <string>

class CommaLocale {
 public:
  // "de_DE.UTF-8" must exist: scripts/setup.sh generates it.
  CommaLocale();
  ~CommaLocale();
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

 private:
  std::string previousC_;
  std::locale previousCpp_;
};
