// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

/** A fault that the user can mend: shown as one line, which names the thing and the remedy. */
export class UserError extends Error {}
