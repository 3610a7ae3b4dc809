// The form that extracts the records that hold a string.
#pragma once

#include "tablejobs/extract/extraction.h"
#include "tablejobs/search/matcher.h"

namespace zelko {

class Form2 : public Form {
 public:
  static constexpr TextView kName = u"Form2";
  Form2();

  Label Label1{*this, u"Label1", u"検索文字列"};
  TextBox Text1{*this, u"Text1"};
  Label Label2{*this, u"Label2", u"検索条件ﾃﾞﾌｫﾙﾄ(無印)／ｵﾌﾟｼｮﾝ(印あり)"};
  CheckBox Check1{*this, u"Check1", u"現項目のみ検索／全項目を検索"};
  CheckBox Check2{*this, u"Check2", u"検索文字列を含む場合／一致する場合"};
  CheckBox Check3{*this, u"Check3", u"大小文字無区別／区別"};
  CheckBox Check4{*this, u"Check4", u"逐一確認*／自動抽出"};
  Label Label3{*this, u"Label3", u"*逐一確認の場合途中で検索条件を変更出来ます"};
  Button Command1{*this, u"Command1", u"検索(CR)"};
  Button Command2{*this, u"Command2", u"終了(ESC)"};
  Button Command3{*this, u"Command3", u"SKIP(&N)"};
  Button Command4{*this, u"Command4", u"抽出(CR)"};
  Label Label5{*this, u"Label5", u""};  // the prompt at a candidate
  Label Label4{*this, u"Label4", u""};  // progress

  // The text to begin with, without a word.
  void preset(TextView text);

 private:
  ExtractionRules rules();
  void narrate();
  bool ready();
  std::optional<std::int16_t> itemThatHits(const WalkedRecord& record) const;

  Extraction extraction_;
  std::optional<Matcher> matcher_;
  SearchTerms terms_;      // of the matcher
  bool allItems_ = false;  // which cells it looks at
  std::int16_t item_ = 0;  // where not all
  Text previous_;          // the box before its last change
};

}  // namespace zelko
