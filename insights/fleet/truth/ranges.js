// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The range that a number is shown as: {position, text}.

// 0.000001, 0.000002, 0.000005, 0.00001 and so on, up to 1000000000000; as they are written.
const bounds = [];
for (let power = -6; power <= 12; ++power) {
    for (const digit of power === 12 ? [1] : [1, 2, 5]) {
        const text = power < 0 ? `0.${"0".repeat(-power - 1)}${digit}` : `${digit}${"0".repeat(power)}`;
        bounds.push({ value: Number(text), text });
    }
}

function textAt(position) {
    if (position === 1) {
        return "under 0.000001";
    }
    return position > bounds.length ? "from 1000000000000"
        : `${bounds[position - 2].text} to ${bounds[position - 1].text}`;
}

export function rangeOf(value) {
    if (value === 0) {
        return { position: 0, text: "0" };
    }
    const position = 1 + bounds.filter((bound) => bound.value <= Math.abs(value)).length;
    return value > 0 ? { position, text: textAt(position) }
        : { position: -position, text: `minus ${textAt(position)}` };
}
