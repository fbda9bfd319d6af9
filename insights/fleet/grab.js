// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// One grab of a simulated camera: what its "Started", "Stopped" and "Failed" tell.

import { second } from "./client.js";

const failures = [
    { code: "0x00000001", text: "Packets of the image are missing.", weight: 70 },
    { code: "0x00000002", text: "The image did not come in time.", weight: 20 },
    { code: "0x0000002a", text: "Failed to write ***", weight: 8 },
    { code: "0xe1000014", text: '<b onclick="alert(1)">odd</b> & \'quoted\'', weight: 2 },
];

const modes = [{ name: "Continuous", weight: 85 }, { name: "SingleFrame", weight: 12 },
    { name: "MultiFrame", weight: 3 }];

// The model's faults, until the version that has mended them.
function faultShare(model, version) {
    const mended = model.mended !== undefined && version >= model.mended;
    return mended ? model.faults / 10 : model.faults;
}

function imagesOf(mode, chance, seconds, rate) {
    const many = { Continuous: Math.round(seconds * rate), SingleFrame: 1, MultiFrame: 10 };
    return many[mode];
}

function streamOf(camera, chance, images, failed) {
    const packets = images * chance.integer(160, 900);
    const loss = camera.model.loss * (camera.badCable ? 60 : 1);
    const resent = chance.poisson(Math.min(packets * loss, 5000));
    return {
        FailedBufferCount: failed,
        FailedPacketCount: Math.round(resent / 7) + failed,
        MissedFrameCount: chance.is(0.01) ? chance.integer(1, 4) : 0,
        ResendPacketCount: resent,
        ResendRequestCount: Math.round(resent * chance.between(0.4, 1)),
        ResynchronizationCount: 0,
        TotalBufferCount: images,
        TotalPacketCount: packets,
    };
}

function barOf(camera, images, failed, rate) {
    return camera.named ? { BPS: 0, FPS: 0, ImagesFailedCount: 0, ImagesGrabbedCount: 0 } : {
        BPS: Math.round(rate * 5013504),
        FPS: Math.floor(rate),
        ImagesFailedCount: failed,
        ImagesGrabbedCount: images - failed,
    };
}

// Some transports do not count packets; what they do not count is -1.
function withoutCounters(stream) {
    return { ...stream, FailedPacketCount: -1, ResendPacketCount: -1, ResendRequestCount: -1,
        TotalPacketCount: -1 };
}

function reports(failed, chance) {
    const first = chance.weighted(failures);
    const other = chance.weighted(failures);
    const part = first.code === other.code || failed < 2 ? failed : Math.ceil(failed / 3);
    const list = [{ ExceptionCode: first.code, ExceptionCount: part, ExceptionText: first.text }];
    if (part < failed) {
        list.push({ ExceptionCode: other.code, ExceptionCount: failed - part,
            ExceptionText: other.text });
    }
    return list;
}

export function grab(session, number, camera, version) {
    const { chance } = session;
    const mode = chance.weighted(modes).name;
    const rate = chance.around(25, 0.7);
    const seconds = mode === "Continuous" ? Math.min(chance.around(40, 1.6), 30000) : 0.5;
    const images = imagesOf(mode, chance, seconds, rate);
    const fails = chance.is(faultShare(camera.model, version));
    const failed = fails ? Math.min(images, 1 + chance.poisson(images * 0.004)) : 0;
    const about = { CameraNr: number, GrabType: mode, Model: camera.model.label };
    session.add("Grab", "Started", about);
    session.wait(seconds * second);
    const stream = streamOf(camera, chance, images, failed);
    session.add("Grab", "Stopped", {
        ...about,
        StatusBarStats: barOf(camera, images, failed, rate),
        StreamStats: chance.is(0.03) ? withoutCounters(stream) : stream,
    });
    for (const report of failed > 0 ? reports(failed, chance) : []) {
        session.add("Grab", "Failed", { CameraNr: number, Model: camera.model.label, ...report });
    }
}
