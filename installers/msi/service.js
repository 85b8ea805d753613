// PrepareService and ReleaseService are deferred custom actions of the package, and run as SYSTEM. Each action runs the
// command line in its property CustomActionData. The second argument of Run, 0, hides the console window: an ordinary
// user can start a repair, and could use a visible window to start programs as SYSTEM.

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

// Asks for a restart if the last line of run_sorrel.cmd's log shows the exit code 3010. A deferred action cannot ask
// for a restart. Therefore, this action is immediate and runs last, after the deferred actions have run.
function AskForRestart() {
  var path = Session.Property("WindowsFolder") + "Logs\\" + Session.Property("Log");
  var log = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(path);
  var line = "";
  while (!log.AtEndOfStream) line = log.ReadLine();
  if (line == "=== ends with 3010") Session.Mode(6) = true;  // 6: restart after the installation
  return 1;
}
