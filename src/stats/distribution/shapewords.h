// The shape of a distribution for the ear: in a sentence, and as tones.
#pragma once

#include <span>

#include "platform/forms/keys.h"
#include "platform/text/text.h"
#include "stats/numbers/distribution.h"

namespace zelko {

// Peaks with their class marks, skew, where the middle half lies. freq[1] to freq[edges.classes] are the counts.
Text shapeSentence(std::span<const double> values, const numbers::ClassEdges& edges, const numbers::ClassCounts& freq);

// The classes from left to right as tones, the higher the more values: two octaves above 220 Hz for the highest class,
// 110 Hz for an empty one. All of it takes some three seconds at most.
void playShape(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq);

// Shift+F11: the sentence, and pressed again at once the tones. Every other key ends the "at once".
class ShapeKey {
 public:
  // At each key-down of the form; true where the key is taken.
  bool keyDown(const KeyEvent& key, std::span<const double> values, const numbers::ClassEdges& edges,
               const numbers::ClassCounts& freq);

 private:
  bool told_ = false;
};

}  // namespace zelko
