#include "app/Rooms.h"

namespace app {

Rooms::Rooms(hostlib::Library& library, ui::Desktop& desktop, const platform::Platform& platform,
             errors::ErrorHandler& errors, common::RunEnd& runEnd, Common& common,
             ui::frmWorking& working, ui::frmPTA& dialog)
    : profile(library, common.ini),
      office(library, common.global, common.session, errors, platform, desktop, common.ini),
      fileHandeling(platform, errors, common.ini, office),
      settingsFile(profile, errors, common.ini, settings::ControlsOf(dialog), *common.settings),
      amounts(*common.settings, *common.totals, errors),
      totals(amounts, *common.settings, *common.totals, *common.mco, *common.pnr, dialog.txtPTA,
             errors),
      dates(common.global, platform, errors),
      pnrReading(library, common.global, common.session, errors, dates, *common.settings,
                 *common.general, *common.pnr, *common.mco,
                 {dialog.chkOP, dialog.lblOPText, dialog.txtOPText}),
      tstReaders(library, common.global, errors, *common.general, *common.pnr, *common.mco,
                 *common.totals),
      checks(library, common.global, common.session, errors, desktop, *common.mco, *common.pnr),
      mcoSegment(library, common.global, errors, profile, *common.mco),
      tsmList(library, common.global, common.session, errors, desktop, *common.tsm, *common.mco),
      waitForMCO(
          {library, common.global, errors, common.stop, desktop, runEnd, pnrReading, checks}),
      tqtSender(library, common.session, errors),
      tstDetails(library, common.global, errors, common.stop, desktop, runEnd,
                 {*common.pnr, *common.mco, *common.general, *common.totals, common.tsts},
                 {tstReaders, amounts, totals}),
      tsts(library, common.session, common.global, errors, common.stop, desktop, runEnd, working,
           {*common.pnr, *common.mco, *common.general, *common.totals, common.tsts}, tstDetails,
           totals),
      tstUpdater(library, common.session, common.global, errors, *common.general, common.tsts),
      changes(library, common.global, common.session, errors, runEnd, dialog, *common.settings,
              common.tsts, *common.pnr, *common.mco),
      backOfficeRemark(common.global, errors, *common.settings, common.tsts, *common.mco),
      creation(library, common.global, common.session, errors, runEnd, dates, backOfficeRemark,
               *common.settings, *common.general, common.tsts, *common.pnr, *common.mco),
      closing(library, common.global, common.session, errors, runEnd, *common.settings,
              *common.mco),
      queueing(library, common.global, common.session, errors, desktop, runEnd),
      dialogFields(common.global, dialog, *common.mco, *common.pnr, *common.general,
                   *common.totals),
      updateRun(dialog, errors, runEnd, *common.settings, *common.pnr, *common.mco,
                {changes, creation, tstUpdater, closing, queueing, tsts}) {}

}  // namespace app
