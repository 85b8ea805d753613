// PrepareService and ReleaseService are deferred custom actions of the package, and run as SYSTEM. The property
// CustomActionData of each action is a command line. This command line must run without a window: an ordinary user may
// start a repair, and could then start programs as SYSTEM from a console window.

function run() {
  return new ActiveXObject("WScript.Shell").Run(Session.Property("CustomActionData"), 0, true);
}

function PrepareService() {
  var code = run();
  return code == 0 || code == 3010 ? 1 : 3;  // 1: success, 3: failure
}

function ReleaseService() {
  run();
  return 1;
}

// Asks for a restart if the last line of run_sorrel.cmd's log has the exit code 3010. A deferred action cannot ask for
// a restart, so this action is immediate and runs last.
function AskForRestart() {
  var path = Session.Property("WindowsFolder") + "Logs\\" + Session.Property("Log");
  var log = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(path);
  var line = "";
  while (!log.AtEndOfStream) line = log.ReadLine();
  if (line == "=== ends with 3010") Session.Mode(6) = true;  // a restart at the end
  return 1;
}
