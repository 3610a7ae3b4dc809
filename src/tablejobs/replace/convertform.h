// The form that converts letters, digits and kana between their widths and cases, and takes blanks out.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "tablejobs/replace/cellrun.h"
#include "tablejobs/replace/conversions.h"

namespace zelko {

class frmEOCR : public Form {
 public:
  static constexpr TextView kName = u"frmEOCR";
  frmEOCR();

  CheckBox Check2{*this, u"Check2", u"ｽﾍﾟｰｽ削除"};
  CheckBox Check3{*this, u"Check3", u"英数字 記号部　半角変換"};
  CheckBox Check4{*this, u"Check4", u"英数字 記号部　全角変換"};
  CheckBox Check5{*this, u"Check5", u"ｶﾅ部　半角変換"};
  CheckBox Check6{*this, u"Check6", u"ｶﾅ部　全角変換"};
  CheckBox Check7{*this, u"Check7", u"英字　小文字変換"};
  CheckBox Check8{*this, u"Check8", u"英字　大文字変換"};
  CheckBox Check1{*this, u"Check1", u"現在項目/全項目"};
  CheckBox Check9{*this, u"Check9", u"逐次変換/連続変換"};
  Button Command1{*this, u"Command1", u"実行(CR)"};
  Button Command2{*this, u"Command2", u"終了(esc)"};

 private:
  void wire();
  void narrate();
  Conversions conversions() const;
  void frmEOCR_Check1_Click();
  void frmEOCR_Command1_Click();
};

// The form and mnuEOCR.
void registerConvertForm();

}  // namespace zelko
