#include "reports/ReportStart.h"

#include "shell/Catalogue.h"
#include "store/CheckTB_DBExists.h"
#include "store/StoreRoutine.h"

namespace sorvane {

bool FindDraws(Session& session, const ReportArgs& args) {
    Global& g = session.global;
    if (const auto name = WinTable(args.family, g.LottoFlag)) args.TableName = *name;
    ProbeTable(session, args.Table());
    if (g.TableOpened != Off) return true;
    g.Msg = "No Winning Numbers entered yet. Please enter some Winning Numbers" + g.NL + "try again." + g.NL;
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, ErrorTitle);
    return false;
}

std::string ReportHead(Session& session, std::string_view caption, bool captioned) {
    const std::string& NL = session.global.NL;
    std::string head = NL + "     Date: " + session.services.clock.Today().ToText();
    if (captioned) head.append(38, ' ').append(caption);
    return head + NL + NL;
}

}  // namespace sorvane
