// The voice of the desktop program: says sentences through the speech service, the newest first.
#pragma once

#include <chrono>
#include <memory>

#include "platform/text/text.h"
#include "speech/voice_service.h"

namespace zelko {

// All work, the dictionary's too, is done on a thread of its own. A sentence that meets no service is thrown away
// after a moment: spoken late it would mislead. While the service is away it is looked for again, at most every half
// minute, and only when there is something to say.
class Reader {
 public:
  explicit Reader(VoiceService::Settings settings = {});
  ~Reader();  // takes no longer than the reading of one sentence, whatever the service does
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  // Each replaces what is being said and what still waits, and returns at once.
  void say(TextView sentence);
  void agent(TextView sentence);  // the talking character: the same service, another voice
  void stop();                    // falls silent

  // False once the service was looked for in vain, true again as soon as it speaks.
  bool serviceFound() const;
  // Waits until the newest sentence was handed over or thrown away; false when the time is up before.
  bool settled(std::chrono::milliseconds limit);

 private:
  struct Worker;
  std::unique_ptr<Worker> worker_;
};

}  // namespace zelko
