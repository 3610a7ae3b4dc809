#include "stats/cluster/registercluster.h"

#include "editor/main/commands.h"
#include "stats/cluster/clusterform.h"
#include "stats/cluster/dendrogramform.h"
#include "stats/correlation/itemform.h"
#include "stats/correlation/serialitems.h"
#include "stats/frame/analysis.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/heard.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"クラスタ分析";

// The form of the methods stands over that of the items; both go when the report stands.
void runCluster(frmRP&, const ItemList& items, const ItemList&) {
  unload<FrmCLUS>();
  FrmCLUS& methods = form<FrmCLUS>();
  methods.take(items);
  methods.showModal();
  analysisMode = u"CLUS";
  if (methods.done) unload<frmRP>();
}

void openCluster() {
  const bool isRaw = askYesNo(u"入力ﾃﾞｰﾀわ素点ですか。いいえで、距離マトリックスになります", kTitle);
  if (msgAnswer == kCancel) return;
  inputKind = isRaw ? u"raw" : u"mat";
  nextIsHeard();
  openItemForm(
      {.word = u"CLUS",
       .caption = Text(kTitle),
       .explanation = u"指定項目を測度として、記録をクラスタに分けます。指定ﾃﾞﾚｸﾄﾘの[KEKKA.TXT]に結果が得られます。",
       .check = [](const ItemList& items) { return chkSerial(items, itemCount); },
       .run = runCluster});
}

}  // namespace

void registerCluster() {
  registerForm<FrmCLUS>();
  registerForm<FrmDENDR>();
  registerCommand(u"mnuCLUS", openCluster);
}

}  // namespace zelko
