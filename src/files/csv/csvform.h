// The form that writes the open table as a CSV file.
#pragma once

#include "parts/job/job.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmCSV : public Form {
 public:
  static constexpr TextView kName = u"frmCSV";
  frmCSV();

  Label Label1{*this, u"Label1", u"編集中のファイルを\"data1\",\"data2\"．．．"};
  Label Label2{*this, u"Label2", u"という形の行が並ぶ、CSVファイルにします。"};
  Label Label3{*this, u"Label3", u"出力ﾌｧｲﾙ名"};
  Label Label4{*this, u"Label4", u""};
  CheckBox Check1{*this, u"Check1", u"表計算ソフト用(UTF-8、見出し付き)"};
  Button Command1{*this, u"Command1", u"実行(CR)"};
  Button Command2{*this, u"Command2", u"キャンセル"};

 private:
  void narrate();
  void frmCSV_Activate();
  void frmCSV_Command1_Click();
  void frmCSV_Command2_Click();
  bool mayWrite() const;
  JobEnd run();
  void close(JobEnd end);

  Text output_;
  bool opened_ = false, running_ = false, stopAsked_ = false;
};

// mnuCSV, csvREAD and the form.
void registerCsv();

}  // namespace zelko
