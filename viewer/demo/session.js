// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What a user does in a short session, so that each kind of usage event happens once at least. A
// line "simulator: COMMAND" is passed on to the simulated camera by who runs the script.

print("waits for a camera");
var camera = cameras.waitFor(1, 20000)[0];

print("opens " + camera.identity);
cameras.open(camera);

print("picks a feature and changes it twice");
features.select(camera, "ExposureTime");
features.set(camera, "ExposureTime", "5000");
features.set(camera, "ExposureTime", "8000");

print("grabs 50 images");
grab.start(camera);
grab.waitFor(camera, 50);
grab.stop(camera);
print("has grabbed " + grab.figures(camera).images + " images");

print("grabs over a bad cable until an image fails");
print("simulator: loss 0.01");
grab.start(camera);
waitUntil(function () { return grab.figures(camera).failures > 0; }, 20000, "an image fails");
print("the last failure: " + grab.figures(camera).lastFailure);
grab.stop(camera);
print("simulator: loss 0");

print("closes it");
cameras.close(camera);

print("pulls the plug");
print("simulator: vanish");
cameras.waitForGone(camera.identity, 30000);
print("simulator: return");

print("quits");
