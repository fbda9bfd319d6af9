// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A first look at an installed viewer with one camera: all that a user does first works.
var notRunning = plugins.list().filter(function (plugin) { return plugin.state !== "Running"; });
if (notRunning.length > 0) {
    fail("not running: " + notRunning.map(function (plugin) { return plugin.name; }));
}
consent.answer("yes");
consent.apply();
var camera = cameras.waitFor(1, 30000)[0];
cameras.open(camera);
features.set(camera, "Gain", "3");
grab.single(camera);
cameras.close(camera);
print("smoke: good");
