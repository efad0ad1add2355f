// The plug-in library, loaded as the host loads an application: through the
// run-time's two entry points.
#pragma once

#include <filesystem>
#include <string>

class Plugin {
 public:
  Plugin() = default;
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;
  // Stops the plug-in if it is running and unloads it.
  ~Plugin();

  // Loads the library and calls its start entry with the text directory and
  // language. False with `error` set when the library cannot be loaded or
  // refuses to start.
  bool Start(const std::filesystem::path& library, const std::wstring& textDir, int language,
             std::string& error);
  void Stop();

 private:
  void* handle_ = nullptr;
  bool running_ = false;
};
