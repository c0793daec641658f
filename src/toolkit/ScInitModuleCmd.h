#pragma once

// Hook by which a cluster module hears that a library has started. No
// cluster module exists here, so the default instance does nothing; an
// embedding application may install its own.
class ScInitModuleCmd {
public:
  virtual ~ScInitModuleCmd() = default;
  static ScInitModuleCmd* Instance();
  // Replaces the instance that Instance() gives; null restores the default.
  // The caller keeps ownership.
  static void setInstance(ScInitModuleCmd* instance);
  virtual void serialize(const char* /*moduleName*/) {}
};
