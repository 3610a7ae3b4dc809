#include "tablejobs/search/bytefilter.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "platform/text/sjis.h"
#include "tablejobs/search/fold.h"

namespace zelko {

namespace {

// What stands for bytes without a character; such bytes are of one length or of two.
constexpr char16_t kReplacement = u'・';

// The longest part of the text whose codes tell where its characters begin and end.
TextView certainPart(TextView wanted) {
  const Text uncertain = {kReplacement, spelled(TextView(&kReplacement, 1), {.foldsForms = true})[0]};
  TextView longest;
  for (std::size_t at = 0; at < wanted.size();) {
    const std::size_t end = std::min(wanted.find_first_of(uncertain, at), wanted.size());
    if (end - at > longest.size()) longest = wanted.substr(at, end - at);
    at = end + 1;
  }
  return longest;
}

// The bytes of every character that a file can hold.
std::vector<std::string> allCharacters() {
  std::vector<std::string> all;
  for (int first = 0; first < 256; ++first) {
    all.push_back({static_cast<char>(first)});
    for (int second = 0x40; second < 256; ++second) {
      std::string pair = {static_cast<char>(first), static_cast<char>(second)};
      if (fromSjis(pair).size() == 1) all.push_back(std::move(pair));
    }
  }
  return all;
}

}  // namespace

Text spelled(TextView text, Spelling spelling) {
  Text out = spelling.foldsForms ? folded(text) : Text(text);
  return spelling.caseCounts ? out : upperCase(out);
}

std::vector<ByteFilter::Code> ByteFilter::madeCodes(Spelling spelling) {
  std::vector<Code> codes;
  const auto add = [&](const std::string& bytes) {
    const Text text = spelled(fromSjis(bytes), spelling);
    if (text.size() != 1) return;
    Code code{text[0], static_cast<std::uint8_t>(bytes.size()), {}};
    std::copy(bytes.begin(), bytes.end(), code.bytes);
    codes.push_back(code);
  };
  const std::vector<std::string> characters = allCharacters();
  for (const std::string& character : characters) add(character);
  if (spelling.foldsForms) {
    // A kana and its mark behind it count as one.
    for (TextView mark : {u"゛", u"゜", u"ﾞ", u"ﾟ"})
      for (const std::string& character : characters) add(character + toSjis(mark));
  }
  std::stable_sort(codes.begin(), codes.end(), [](const Code& a, const Code& b) { return a.character < b.character; });
  return codes;
}

const std::vector<ByteFilter::Code>& ByteFilter::codesOf(Spelling spelling) {
  static std::array<std::vector<Code>, 4> made;
  std::vector<Code>& codes = made[(spelling.caseCounts ? 1 : 0) + (spelling.foldsForms ? 2 : 0)];
  if (codes.empty()) codes = madeCodes(spelling);
  return codes;
}

ByteFilter::ByteFilter(TextView wanted, Spelling spelling) {
  const std::vector<Code>& codes = codesOf(spelling);
  const auto before = [](const Code& code, char16_t character) { return code.character < character; };
  for (const char16_t unit : certainPart(wanted)) {
    const auto first = std::lower_bound(codes.begin(), codes.end(), unit, before);
    auto last = first;
    while (last != codes.end() && last->character == unit) ++last;
    codes_.emplace_back(first, last);
  }
  if (!codes_.empty()) takeStarts();
}

void ByteFilter::takeStarts() {
  constexpr std::size_t kMostStarts = 8;
  for (const Code& code : codes_[0]) {
    begins_[static_cast<unsigned char>(code.bytes[0])] = true;
    if (code.length > 1) {
      starts_.push_back({code.bytes[0], code.bytes[1], false});
    } else if (codes_.size() == 1) {
      starts_.push_back({code.bytes[0], 0, true});
    } else {
      for (const Code& next : codes_[1]) starts_.push_back({code.bytes[0], next.bytes[0], false});
    }
  }
  std::ranges::sort(starts_);
  starts_.erase(std::unique(starts_.begin(), starts_.end()), starts_.end());
  if (starts_.size() > kMostStarts) starts_.clear();
}

// Without a branch in the loop, so that many bytes are looked at in one step.
bool ByteFilter::holdsPair(std::string_view bytes, Start start) {
  unsigned char found = 0;
  for (std::size_t i = 0; i + 1 < bytes.size(); ++i)
    found |= static_cast<unsigned char>((bytes[i] == start.first) & (bytes[i + 1] == start.second));
  return found != 0;
}

bool ByteFilter::mayBegin(std::string_view bytes) const {
  std::size_t at = 0;
  for (auto start = starts_.begin(); start != starts_.end(); ++start) {
    if (start == starts_.begin() || start->first != std::prev(start)->first) at = bytes.find(start->first);
    if (at == std::string_view::npos) continue;
    if (start->alone || holdsPair(bytes.substr(at), *start)) return true;
  }
  return starts_.empty();
}

bool ByteFilter::standsAt(const char* at, const char* end) const {
  for (const std::span<const Code> codes : codes_) {
    const auto here = std::find_if(codes.begin(), codes.end(), [&](const Code& code) {
      return end - at >= code.length && std::memcmp(at, code.bytes, code.length) == 0;
    });
    if (here == codes.end()) return false;
    at += here->length;
  }
  return true;
}

bool ByteFilter::mayHold(std::string_view bytes) const {
  if (codes_.empty()) return true;
  if (!mayBegin(bytes)) return false;
  const char* const end = bytes.data() + bytes.size();
  for (const char* at = bytes.data(); at != end; ++at)
    if (begins_[static_cast<unsigned char>(*at)] && standsAt(at, end)) return true;
  return false;
}

}  // namespace zelko
