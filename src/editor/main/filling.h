// What the program itself puts into the boxes of the main form.
#pragma once

namespace zelko {

// Changes that the program makes, not the user: no box commits, refuses or is echoed for them.
class Filling {
 public:
  Filling() { ++running_; }
  ~Filling() { --running_; }
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;
  static bool runs() { return running_ > 0; }

 private:
  inline static int running_ = 0;
};

// While it lives the changes of the two number boxes announce nothing.
class HeldAnnouncement {
 public:
  HeldAnnouncement() { ++held_; }
  ~HeldAnnouncement() { --held_; }
  HeldAnnouncement(const HeldAnnouncement&) = delete;
  HeldAnnouncement& operator=(const HeldAnnouncement&) = delete;
  static bool holds() { return held_ > 0; }

 private:
  inline static int held_ = 0;
};

}  // namespace zelko
