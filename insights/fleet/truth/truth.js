// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Every question, answered by plain code from the events themselves. It knows the definitions of
// the questions and nothing of the engine: what both agree on is right, or wrongly defined.

import { cameraModels, camerasPerClient, packetLoss } from "./cameras.js";
import { activeClients, consent, eventsLost, notUpdated, returningClients, versions }
    from "./clients.js";
import { featuresChanged, featuresChosen, featuresUntouched, valuesSet } from "./features.js";
import { failures, failureTexts, firstImage, grabLengths, grabRates } from "./grabs.js";
import { sessionFunnel, sessionLengths, sessionsUnended } from "./sessions.js";
import { dayNumber, dayOf } from "./terms.js";

const questions = {
    "active-clients": activeClients,
    "camera-models": cameraModels,
    "cameras-per-client": camerasPerClient,
    consent,
    "events-lost": eventsLost,
    "failure-texts": failureTexts,
    failures,
    "features-changed": featuresChanged,
    "features-chosen": featuresChosen,
    "features-untouched": featuresUntouched,
    "first-image": firstImage,
    "grab-lengths": grabLengths,
    "grab-rates": grabRates,
    "not-updated": notUpdated,
    "packet-loss": packetLoss,
    "returning-clients": returningClients,
    "session-funnel": sessionFunnel,
    "session-lengths": sessionLengths,
    "sessions-unended": sessionsUnended,
    "values-set": valuesSet,
    versions,
};

export const questionNames = Object.keys(questions);

export class Truth {
    constructor(seen) {
        this.clients = [...seen.byClient()];
        this.withdrawals = seen.withdrawalsInBounds();
    }

    // {rows, speaksFor, leftOut} for a period of whole days, "until" excluded.
    answer(name, { since, until, threshold }) {
        const from = dayNumber(since);
        const to = dayNumber(until);
        return questions[name]({
            clients: this.clients,
            withdrawals: this.withdrawals,
            since: from,
            until: to,
            inPeriod: ({ time }) => dayOf(time) >= from && dayOf(time) < to,
            threshold,
        });
    }
}
