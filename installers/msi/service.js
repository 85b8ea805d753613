// PrepareService and ReleaseService are deferred actions of the package. In each, CustomActionData is a command
// line. It runs without a window: an ordinary user may start a repair, and could start programs as SYSTEM from a
// console window.

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

// A deferred action cannot ask for a restart. This action is not deferred: it runs last, and reads the end of the log.
function AskForRestart() {
  var path = Session.Property("WindowsFolder") + "Logs\\" + Session.Property("Log");
  var log = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(path);
  var line = "";
  while (!log.AtEndOfStream) line = log.ReadLine();
  if (line == "=== ends with 3010") Session.Mode(6) = true;  // a restart at the end
  return 1;
}
