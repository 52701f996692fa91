// What every test program sets before anything of it runs, so that it can be started by hand without an environment:
// the same display, time zone and locale everywhere. With KARVEX_ON_DISPLAY set the screens come up on the display that
// the environment names.
#include <cstdlib>

namespace {

[[maybe_unused]] const bool Fixed = [] {
  if (std::getenv("KARVEX_ON_DISPLAY") == nullptr) {
    ::setenv("QT_QPA_PLATFORM", "offscreen:configfile=" KARVEX_TEST_DISPLAY, 1);
  }
  ::setenv("TZ", "UTC", 1);
  ::setenv("LC_ALL", "C.UTF-8", 1);
  ::setenv("QT_LOGGING_RULES", "qt.qpa.*=false", 1);
  return true;
}();

}  // namespace
