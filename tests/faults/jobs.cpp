#include "faults/jobs.h"

namespace zelko::test {

const std::vector<Job> kJobs = {
    {"type-cells", Holds::records, "key Right\ntype abc\nkey Enter\ntype 7\nkey Enter\nkey Down\ncommit xy\nkey Down"},
    {"new-record", Holds::records, "key Ctrl+PageDown\ntype 9\nkey Enter\ntype new\n# job\nkey Up"},
    {"name-and-memo", Holds::whole,
     "key Right\nfocus Form1.RichTextBox2\ncommit N\nfocus Form1.txtinputbox\nfocus Form1.RichTextBox1\ncommit M\n"
     "focus Form1.txtinputbox"},
    {"realign-item", Holds::whole, "key Right\nfocus Form1.txtLR\ntype R\nfocus Form1.txtinputbox"},
    {"insert-record", Holds::whole, "key Down\n# job\nmenu mnuINSREC1\nwait 2"},
    {"delete-records", Holds::whole,
     "key Down\nkey Alt+Down\nkey Down\nkey Enter\n# job\nmenu menuRKILL\nkey Y\nwait 2"},
    {"move-records", Holds::whole,
     "key Down\nkey Alt+Down\nkey Down\nkey Enter\nkey Down\nkey Down\nkey Enter\nwait 2"},
    {"insert-item", Holds::whole, "key Right\n# job\nmenu mnuINSITEM\nkey Y\nwait 2"},
    {"delete-item", Holds::whole, "key Right\nkey Right\n# job\nmenu mnuKILLITEM\nkey Y\nwait 2"},
    {"move-items", Holds::whole, "key Right\nkey Alt+Right\nkey Enter\nkey Right\nkey Right\nkey Enter\nwait 2"},
    {"change-width", Holds::whole, "key Right\nkey Right\n# job\nkey Ctrl+Space\nkey Enter\nwait 2"},
    {"design-rewritten", Holds::whole,
     "wait 1\nkey F5\nkey Down\nkey Enter\nkey Enter\ntype 10\nkey Enter\nfocus frmDESIGN.Command1\nkey Enter\nkey "
     "Y\nwait 2"},
    {"clear-block", Holds::records,
     "key Right\nkey Shift+Down\nkey Down\nkey Right\nkey Enter\n# job\nmenu mnuZDEL\nkey Y\nwait 2"},
    {"copy-to-clip", Holds::whole, "key Right\nkey Shift+Down\nkey Down\nkey Right\nkey Ctrl+Insert\nwait 2"},
    {"paste-over", Holds::records, "key Down\nkey Right\n# job\nkey Ctrl+O\nwait 2"},
    {"paste-at-end", Holds::records, "key Ctrl+PageDown\n# job\nkey Ctrl+O\nwait 2"},
    {"paste-insert", Holds::records, "key Down\n# job\nkey Ctrl+Y\nwait 2", "",
     "key Down\nmenu mnuINSREC1\nwait 2\nmenu mnuINSREC1\nwait 2"},
    {"paste-undone", Holds::records, "key Down\nkey Right\nkey Ctrl+O\nwait 2\nkey Ctrl+I\nkey Y\nwait 2"},
    {"move-cells", Holds::records,
     "key Right\nkey Shift+Down\nkey Down\nkey Enter\nkey Ctrl+Down\nkey Down\nkey Down\nkey Enter\nwait 2"},
    {"save-as", Holds::whole, "wait 1\n# job\nmenu mnuRESAS\nwait 20\ncommit new.txt\nkey Enter\nwait 2\nkey Y",
     "new.txt"},
    {"save-behind", Holds::whole, "wait 1\nmenu mnuRESAS\nwait 20\ncommit u.txt\nkey Enter\nwait 2\nkey Y", "u.txt"},
    {"sort", Holds::whole, "wait 1\n# job\nkey F2\nkey Enter\ntype 1\nkey Enter\nkey N\nwait 2"},
    {"sort-by-keys", Holds::whole,
     "wait 1\n# job\nmenu mnuMSORT\nwait 1\ntype 2\nkey Enter\ntype d\nfocus frmMSORT.Command1\nkey Enter\nwait 2"},
    {"sort-into-file", Holds::whole,
     "wait 1\n# job\nmenu mnuSORTF\nwait 20\ncommit new.txt\nkey Enter\nkey Enter\ntype 1\nkey Enter\nkey N\nwait "
     "2\nkey Y",
     "new.txt"},
    {"sort-as-listed", Holds::whole,
     "wait 1\n# job\nkey Shift+F2\nkey Down\nkey Down\nkey Enter\nkey Down\nkey Enter\nkey Y\nwait 2"},
    {"blocks", Holds::whole,
     "wait 1\n# job\nmenu mnuMBROCK\nwait 1\nfocus FrmBROCK.Text2\ncommit 1/0\nkey Enter\ncommit new.txt\nkey "
     "Enter\nwait 2\nkey Y",
     "new.txt"},
    {"blocks-appended", Holds::whole,
     "key Down\nkey Alt+Down\nkey Down\nkey Enter\n# job\nmenu mnuBROCK\ntype new.txt\\n\nwait 2\nkey Y\nwait 1",
     "new.txt"},
    {"extract-by-conditions", Holds::whole,
     "menu mnuMFIND\ntype n\\n2\\n>\\n7\\n\nfocus Form7.Check2\nkey Space\nclick Form7.Command1\n# job\ntype "
     "new.txt\\n\nwait 2\nkey Y\nwait 1",
     "new.txt"},
    {"extract-by-text", Holds::whole,
     "key Right\nmenu mnuFIND\nkey Shift+Ctrl+A\ncommit o\nfocus Form2.Check4\nkey Space\nclick Form2.Command1\n# "
     "job\ntype new.txt\\n\nwait 2\nkey Y\nwait 1",
     "new.txt"},
    {"csv-read", Holds::whole,
     "wait 1\nmenu mnuREAD\nwait 1\nfocus frmDISK.Command2\nkey Enter\nwait 1\nfocus frmDESIGN.Command4\nkey "
     "Enter\nkey Down\nwait 1\nkey Enter\nwait 2\nfocus frmDESIGN.text3\ntype new\nfocus frmDESIGN.Command1\nkey "
     "Enter\nwait 2\nfocus frmDISK.Command1\n# job\nkey Enter\nwait 2",
     "new.txt"},
    {"lock-and-release", Holds::records,
     "type x\nkey Enter\nmenu mnuFbt\nkey Y\nwait 2\nmenu mnuFbt\nkey Y\nwait 2\ntype y\nkey Enter\nkey Down"},
    {"replace-at-once", Holds::records,
     "key Right\nkey F4\ntype o\nfocus frmREPLACE.RichTextBox2\ntype 0\nfocus frmREPLACE.Check5\nkey Enter\nfocus "
     "frmREPLACE.Command3\n# job\nkey Enter\nwait 2"},
    {"replace-asked", Holds::records,
     "key Right\nkey F4\ntype o\nfocus frmREPLACE.RichTextBox2\ntype 0\nfocus frmREPLACE.Command3\n# job\nkey "
     "Enter\nkey Y\nwait 1\nkey Y\nwait 2\nkey Enter"},
    {"convert-letters", Holds::records,
     "key Right\nmenu mnuEOCR\nfocus frmEOCR.Check8\nkey Enter\nfocus frmEOCR.Check9\nkey Enter\nfocus "
     "frmEOCR.Command1\n# job\nkey Enter\nwait 2\nkey Enter"},
    {"format-numbers", Holds::records, "key Right\nkey Right\nkey Ctrl+F\ntype 00.0\n# job\nkey Enter\nwait 2"},
    {"replace-by-codes", Holds::records,
     "menu mnuDICT\nkey Down\nfocus frmFileNo.List1\nkey Down\nkey Down\nkey Down\nkey Enter\n# job\nkey Y\nwait 2"},
    {"design-new-table", Holds::whole,
     "wait 1\nmenu mnuNEW\nwait 1\nkey Enter\nkey Enter\ntype 4\nkey Enter\nwait 1\nkey Enter\nkey Down\ntype n\nkey "
     "Enter\ntype r\nkey Enter\ntype 9\nfocus frmDESIGN.Command1\n# job\nkey Enter\nwait 2",
     "NoName.txt"},
    {"convert-text", Holds::whole,
     "wait 1\nmenu mnuCZLK\nwait 1\nkey Down\nkey Enter\nwait 20\nkey Enter\n# job\nwait 2\nkey Enter\nwait 2\nkey "
     "Enter\nwait 1",
     "0_ZELKO.lst.txt"},
    {"delete-table", Holds::whole, "menu mnuDEL\nwait 1\nkey Down\nkey Down\n# job\nkey Enter\nkey Y\nwait 2", "d.txt"},
    {"model-table", Holds::whole, "wait 3\nkey Tab\nkey Tab\nkey Tab\nkey Tab\n# job\nkey Enter\nwait 2",
     "\xE5\xAE\xB6\xE8\xA8\x88\xE7\xB0\xBF.txt", "", ""},
    {"make-folder", Holds::whole,
     "wait 1\nmenu mnuREAD\nwait 1\nfocus frmDISK.Command4\nkey Enter\nwait 1\ncommit neu\n# job\nkey Enter\nwait 2",
     "neu"},
    {"leave", Holds::records, "type x\nkey Enter\nmenu mnuEND"},
    {"dial-settings", Holds::whole, "# job\nmenu mnuTEL\nwait 1\nclick frmTEL.Option1\nkey Esc\nwait 1", "zlkTEL"},
};

namespace {

std::string record(const std::string& cells) { return cells + std::string(254 - cells.size(), ' ') + "\r\n"; }

}  // namespace

std::vector<std::pair<std::string, std::string>> filesBefore() {
  const std::string items =
      "100  ',memo,,3\r\n1000 'ID,L\r\n1001 'name,L\r\n1002 'points,R\r\n1003 'remark,L\r\n"
      "2000 '3\r\n2001 '8\r\n2002 '4\r\n2003 '6\r\n";
  std::string t;
  for (const char* cells : {"1  \x91\xBE\x98Y      12a", "2  two     100b", "3  \x83\x5C|         c", "4  four      7",
                            "5            8e", "6  six       9f"})
    t += record(cells);
  return {{"t.txt", t},
          {"Kt.txt", items},
          {"u.txt", record("u1") + record("u2")},
          {"Ku.txt", items},
          {"c.txt", record("1  two     2") + record("2  four    4")},
          {"Kc.txt", items},
          {"d.txt", record("d1")},
          {"Kd.txt", items},
          {"m1.___", record("m1")},
          {"km1.___", items},
          {"in.csv", "7,seven,70,g\r\n8,\"ei,ght\",80,h\r\n"},
          {"0.lst", "line one\r\nline two\r\n"},
          {"ZLKCLip", "2\r\n1\r\n2\r\n2\r\n1\r\n2\r\n\"p\"\r\n\"55\"\r\n\"q\"\r\n\"66\"\r\n"},
          {"zlkTalk", " 1 \r\n"},
          {"mAgent", " 0 \r\n"}};
}

}  // namespace zelko::test
