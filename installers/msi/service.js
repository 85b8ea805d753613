// The deferred actions of the package: each runs the command line in CustomActionData without a window. An ordinary user may
// start a repair, and from a console on his screen he could start programs with the system's rights.

function run() {
  return new ActiveXObject("WScript.Shell").Run(Session.Property("CustomActionData"), 0, true);
}

function PrepareService() {
  var code = run();
  return code == 0 || code == 3010 ? 1 : 3;  // success, failure
}

function ReleaseService() {
  run();
  return 1;
}

// A deferred action cannot ask for a restart, so this one looks at the end of the log when all is done.
function AskForRestart() {
  var path = Session.Property("WindowsFolder") + "Logs\\" + Session.Property("Log");
  var log = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(path);
  var line = "";
  while (!log.AtEndOfStream) line = log.ReadLine();
  if (line == "=== ends with 3010") Session.Mode(6) = true;  // a restart at the end
  return 1;
}
