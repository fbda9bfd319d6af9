// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What a user does in a short session: waits for the camera, looks at it, closes it, leaves.

print("waits for a camera");
var camera = cameras.waitFor(1, 20000)[0];

print("opens " + camera.identity);
cameras.open(camera);

print("closes it and quits");
cameras.close(camera);
