#include "reports/ReportStart.h"

#include "shell/Catalogue.h"
#include "store/CheckTB_DBExists.h"
#include "store/StoreRoutine.h"

namespace sorvane {

bool FindDraws(Run& run, const ReportArgs& args) {
    Global& g = run.global;
    if (const auto name = WinTable(args.family, g.LottoFlag)) args.TableName = *name;
    ProbeTable(run, args.DbName, args.TableName);
    if (g.TableOpened != Off) return true;
    g.Msg = "No Winning Numbers entered yet. Please enter some Winning Numbers" + g.NL + "try again." + g.NL;
    run.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, ErrorTitle);
    return false;
}

std::string ReportHead(Run& run, std::string_view caption, bool captioned) {
    const std::string& NL = run.global.NL;
    std::string head = NL + "     Date: " + run.services.clock.Today().ToText();
    if (captioned) head.append(38, ' ').append(caption);
    return head + NL + NL;
}

}  // namespace sorvane
