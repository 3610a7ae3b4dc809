#include "files/picker/pickerwords.h"

#include "parts/disk/filewords.h"

namespace zelko {

namespace {

constexpr TextView kItemFiles = u"k?*.txt";
constexpr TextView kChoose = u" ﾌｧｲﾙを指定して下さい。";

// In the order of PickFor.
constexpr PickerJob kJobs[] = {
    {PickFor::table, u"YOMIKOMI", u"Zelkoﾌｧｲﾙ指定", kItemFiles, u"読み込み(CR)", u"ﾌｧｲﾙ", kChoose, true, false},
    {PickFor::deletion, u"delfile", u"削除ﾌｧｲﾙ指定", kItemFiles, u"削除(CR)", u"ﾌｧｲﾙ", u"", true, true},
    {PickFor::layout, u"LAYOUT", u"ﾚｲｱｳﾄﾌｧｲﾙ指定", u"*(*).LAY", u"読込(CR)", u"ﾚｲｱｳﾄ",
     u"レイアウトファイルを指定してください。なおDeleteキーでファイル削除です", false, true},
    {PickFor::reference, u"REF", u"Zelkoﾌｧｲﾙ指定", kItemFiles, u"読み込み(CR)", u"参照ﾌｧｲﾙ", kChoose, true, true},
    {PickFor::text, u"CVZLKF", u"Zelkoﾌｧｲﾙへの変換", u"*.*", u"読み込み(CR)", u"ﾌｧｲﾙ", kChoose, false, true},
    {PickFor::csv, u"SVCread", u"Zelkoﾌｧｲﾙ指定", u"*.csv", u"読み込み(CR)", u"CSVﾌｧｲﾙ", kChoose, false, false},
};

}  // namespace

const TextView kCsvHint =
    u"●クリックすると項目区切り設定ウインドウが開かれます。CSV１行の項目数と､各項目の項目幅等を設定してください。\r\n"
    u"●設定後読み込むCSVファイルを指定。\r\n"
    u"●指定後、再度CSVファイルの読み込みボタンをクリックしてください。CSV1行項目数が設定項目数を超える場合、超過項目デ"
    u"ータは読み込まれず、項目幅を超える文字列部分はカットされます。";
const TextView kListHint =
    u"●ﾌｧｲﾙを選んでｽﾍﾟｰｽｷｰを叩くと、項目名一覧が表示されます。\r\n"
    u"●下のボタンで、Zelkoﾌｧｲﾙでないﾌｧｲﾙも表示し、Zelkoﾌｧｲﾙに変換して読み込めます。";

const PickerJob& pickerJob(PickFor purpose) { return kJobs[static_cast<std::size_t>(purpose)]; }

Text openingSentence(const PickerJob& job, bool listIsEmpty) {
  Text sentence = Text(job.caption) + u"フォームが開かれました。" + Text(job.prompt);
  if (listIsEmpty) sentence += kNoFileHere;
  return sentence;
}

Text fileReport(TextView selected, TextView whereTheFocusIs) {
  const Text name = selected.empty() ? Text(u"ｶﾞｲﾄｳ ﾌｧｲﾙなし｡") : spokenName(selected);
  return u"。ファイルリストボックスでは、" + name + Text(whereTheFocusIs);
}

Text pickerHelp(const PickerJob& job) {
  Text help = u"フォームが開かれました。" + Text(job.prompt);
  help +=
      u"ﾀﾌﾞｷｰで、ﾄﾞﾗｲﾌﾞﾎﾞｯｸｽ、ﾌｫﾙﾀﾞﾎﾞｯｸｽ、ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ、ボタンの順に移動します。"
      u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽで、矢印ｷｰでﾌｧｲﾙを選択し、CRｷｰを叩くと";
  help += job.purpose == PickFor::deletion ? u"、確認ののち、ﾌｧｲﾙが削除されます。" : u"、ﾌｧｲﾙが読み込まれます。";
  if (job.tables) help += u"スペースで選択されているﾌｧｲﾙの項目内容が表示されます。";
  return help + u"中止はｴｽｹｰﾌﾟｷｰです。";
}

TextView toggleReport(bool showsAllFiles) {
  if (showsAllFiles) return u"。Zelkoﾌｧｲﾙだけの表示に戻します。";
  return u"。Zelkoﾌｧｲﾙでないﾌｧｲﾙも表示し、Zelkoﾌｧｲﾙに変換して読み込みます。";
}

}  // namespace zelko
