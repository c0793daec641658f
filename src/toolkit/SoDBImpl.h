#pragma once

// Queries of the writer about the kind of process it runs in. This build runs
// neither in a cluster nor in a render-farm worker, so both are false.
class SoDBImpl {
public:
  static bool isRunningCluster() { return false; }
  static bool isRunningART() { return false; }
};
