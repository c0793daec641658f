#pragma once

// Counted start and end of the toolkit. The toolkit itself starts once and
// tears everything down at its first finish, while the library's own start
// and end are counted: the real teardown waits for the last finish.
class SoToolkitStarts {
public:
  // Starts the database, the node kits and the draggers, and registers the
  // field types of this layer.
  static void init();
  // Undoes one init; the last one shuts the toolkit down. A surplus call does
  // nothing.
  static void finish();
  static int getStartCount();
};
