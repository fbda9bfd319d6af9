-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_features
SELECT day, client, name, countIf(category = 'FeatureChosen'),
    countIf(category = 'ParameterValueChanged')
FROM recent
WHERE category IN ('FeatureChosen', 'ParameterValueChanged') AND is_feature_name(name) AND day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client, name;
