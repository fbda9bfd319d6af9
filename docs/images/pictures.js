// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The pictures of the README: see tools/make-pictures.sh.
language.set("en");
menu.trigger("NerixViewer.Action.Appearance.Light");
sleep(1000);
windows.save("Welcome to the Nerix Viewer", "consent-page.png");
consent.answer("yes");
consent.apply();
welcome.close();

var camera = cameras.waitFor(1, 30000)[0];
cameras.select(camera);
cameras.open(camera);
windows.resize("Nerix Viewer", 1040, 640);
sleep(1000);
features.select(camera, "ExposureTime");
features.set(camera, "ExposureTime", "8000");
grab.start(camera);
grab.waitFor(camera, 40);
sleep(1500);
windows.save("Nerix Viewer", "main-window.png");
grab.stop(camera);
