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
