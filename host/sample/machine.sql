-- SPDX-License-Identifier: MIT
-- The sample database: a small milling machine as its maker keeps it, with parts, assemblies,
-- materials, suppliers, documents and orders. All names are invented. The file is long because it
-- is data.

PRAGMA foreign_keys = ON;
BEGIN;

CREATE TABLE person (
    id         INTEGER PRIMARY KEY,
    name       TEXT NOT NULL,
    department TEXT NOT NULL,
    email      TEXT
);
INSERT INTO person VALUES
    (1, 'Ingrid Halvorsen', 'design', 'i.halvorsen@example.com'),
    (2, 'Tomás Echeverría', 'design', 't.echeverria@example.com'),
    (3, 'Jana Dvořáková', 'production', 'j.dvorakova@example.com'),
    (4, 'Per Lindqvist', 'purchasing', 'p.lindqvist@example.com'),
    (5, '森田 美咲', 'electronics', 'm.morita@example.com'),
    (6, 'Oluwaseun Adeyemi', 'quality', 'o.adeyemi@example.com'),
    (7, 'Giulia Ferretti', 'documentation', NULL),
    (8, 'Marek Zieliński', 'service', 'm.zielinski@example.com');

CREATE TABLE material (
    id              INTEGER PRIMARY KEY,
    name            TEXT NOT NULL UNIQUE,
    family          TEXT NOT NULL,
    density_g_cm3   REAL NOT NULL,
    yield_mpa       INTEGER,
    price_eur_kg    REAL
);
INSERT INTO material VALUES
    (1, 'steel S235', 'structural steel', 7.85, 235, 1.15),
    (2, 'steel S355', 'structural steel', 7.85, 355, 1.32),
    (3, 'steel C45', 'heat-treatable steel', 7.84, 430, 1.55),
    (4, 'steel 42CrMo4', 'heat-treatable steel', 7.83, 750, 2.40),
    (5, 'steel 16MnCr5', 'case-hardening steel', 7.82, 590, 1.95),
    (6, 'steel 100Cr6', 'bearing steel', 7.81, NULL, 3.10),
    (7, 'stainless 1.4301', 'stainless steel', 7.90, 210, 4.20),
    (8, 'stainless 1.4404', 'stainless steel', 7.98, 220, 5.35),
    (9, 'cast iron GJL-250', 'cast iron', 7.20, NULL, 1.40),
    (10, 'cast iron GJS-500', 'cast iron', 7.10, 320, 1.75),
    (11, 'aluminium 6061', 'aluminium', 2.70, 240, 4.60),
    (12, 'aluminium 7075', 'aluminium', 2.81, 460, 8.90),
    (13, 'brass CW614N', 'copper alloy', 8.47, 250, 7.80),
    (14, 'bronze CC483K', 'copper alloy', 8.80, 140, 11.50),
    (15, 'POM-C', 'plastic', 1.41, 67, 4.10),
    (16, 'PA 6', 'plastic', 1.14, 80, 3.60),
    (17, 'PTFE', 'plastic', 2.18, NULL, 14.20),
    (18, 'NBR 70', 'elastomer', 1.30, NULL, 6.00),
    (19, 'granite, fine-grained', 'mineral', 2.95, NULL, 2.90);

CREATE TABLE supplier (
    id      INTEGER PRIMARY KEY,
    name    TEXT NOT NULL,
    city    TEXT NOT NULL,
    country TEXT NOT NULL,
    since   TEXT NOT NULL, -- ISO date
    rating  REAL           -- 1 to 5; null: not rated yet
);
INSERT INTO supplier VALUES
    (1, 'Nordvik Fasteners', 'Bergen', 'NO', '2009-03-12', 4.5),
    (2, 'Gießerei Altmühl', 'Eichstätt', 'DE', '2011-07-01', 4.0),
    (3, 'Balgarova Bearings', 'Plovdiv', 'BG', '2013-02-18', 3.8),
    (4, 'Ferro & Figli', 'Brescia', 'IT', '2010-10-05', 4.2),
    (5, '山本精密工業', '浜松', 'JP', '2014-05-22', 4.9),
    (6, 'Laser Cut Łódź', 'Łódź', 'PL', '2016-09-14', 4.1),
    (7, 'Plásticos Duero', 'Valladolid', 'ES', '2015-01-30', 3.6),
    (8, 'Kestrel Drives', 'Sheffield', 'GB', '2012-11-08', 4.4),
    (9, 'Aalto Sensors', 'Tampere', 'FI', '2018-04-03', 4.7),
    (10, 'Granitwerk Fichtelberg', 'Selb', 'DE', '2017-06-19', 4.3),
    (11, 'Cable & Conduit', 'Rotterdam', 'NL', '2013-08-27', 3.9),
    (12, 'Sealing Systems Vltava', 'Písek', 'CZ', '2019-12-02', NULL),
    (13, 'O''Malley Castings', 'Cork', 'IE', '2020-03-16', NULL),
    (14, 'Atelier "Précision"', 'Besançon', 'FR', '2016-02-11', 4.6);

CREATE TABLE part (
    id           INTEGER PRIMARY KEY,
    number       TEXT NOT NULL UNIQUE,
    name         TEXT NOT NULL,
    kind         TEXT NOT NULL CHECK (kind IN ('made', 'bought', 'standard')),
    material_id  INTEGER REFERENCES material (id),
    mass_kg      REAL,
    price_eur    REAL,
    stock        INTEGER NOT NULL DEFAULT 0,
    released     TEXT, -- ISO date; null: in work
    responsible  INTEGER REFERENCES person (id),
    mass_g       REAL GENERATED ALWAYS AS (round(mass_kg * 1000, 1)) VIRTUAL
);
INSERT INTO part (id, number, name, kind, material_id, mass_kg, price_eur, stock, released,
                  responsible) VALUES
    (1, 'M-1001', 'base frame, welded', 'made', 2, 86.4, 640.00, 2, '2021-02-10', 1),
    (2, 'M-1002', 'levelling foot', 'bought', 7, 0.62, 11.90, 48, '2021-02-10', 1),
    (3, 'M-1003', 'chip tray', 'made', 7, 4.85, 88.50, 6, '2021-03-04', 1),
    (4, 'M-1004', 'machine bed', 'made', 19, 212.0, 1480.00, 1, '2021-02-26', 1),
    (5, 'M-1005', 'column', 'made', 9, 148.5, 1120.00, 1, '2021-03-11', 1),
    (6, 'M-1006', 'column cover plate', 'made', 1, 3.20, 34.80, 9, '2021-04-06', 2),
    (7, 'M-2001', 'X saddle', 'made', 10, 41.3, 515.00, 3, '2021-04-14', 2),
    (8, 'M-2002', 'Y saddle', 'made', 10, 46.9, 548.00, 2, '2021-04-14', 2),
    (9, 'M-2003', 'Z slide', 'made', 10, 28.7, 430.00, 3, '2021-04-22', 2),
    (10, 'M-2004', 'profile rail 20, 620 mm', 'bought', 6, 1.38, 74.20, 14, '2021-04-02', 2),
    (11, 'M-2005', 'profile rail 20, 480 mm', 'bought', 6, 1.07, 61.00, 11, '2021-04-02', 2),
    (12, 'M-2006', 'profile rail 25, 540 mm', 'bought', 6, 1.73, 92.40, 7, '2021-04-02', 2),
    (13, 'M-2007', 'rail carriage 20', 'bought', 6, 0.41, 38.60, 52, '2021-04-02', 2),
    (14, 'M-2008', 'rail carriage 25', 'bought', 6, 0.68, 46.10, 18, '2021-04-02', 2),
    (15, 'M-2009', 'ball screw 16x5, 640 mm', 'bought', 6, 1.21, 188.00, 5, '2021-05-03', 2),
    (16, 'M-2010', 'ball screw 16x5, 500 mm', 'bought', 6, 0.98, 169.00, 4, '2021-05-03', 2),
    (17, 'M-2011', 'ball screw 20x5, 560 mm', 'bought', 6, 1.74, 214.00, 3, '2021-05-03', 2),
    (18, 'M-2012', 'ball nut 16x5', 'bought', 6, 0.24, 96.00, 9, '2021-05-03', 2),
    (19, 'M-2013', 'ball nut 20x5', 'bought', 6, 0.37, 118.00, 4, '2021-05-03', 2),
    (20, 'M-2014', 'fixed bearing block 12', 'bought', 3, 0.82, 57.30, 12, '2021-05-10', 2),
    (21, 'M-2015', 'floating bearing block 12', 'bought', 3, 0.55, 33.90, 12, '2021-05-10', 2),
    (22, 'M-2016', 'fixed bearing block 15', 'bought', 3, 1.04, 66.80, 5, '2021-05-10', 2),
    (23, 'M-2017', 'motor bracket', 'made', 11, 0.91, 42.60, 15, '2021-05-17', 2),
    (24, 'M-2018', 'shaft coupling 10/14', 'bought', 12, 0.11, 27.50, 21, '2021-05-17', 2),
    (25, 'M-2019', 'limit cam', 'made', 15, 0.03, 2.85, 60, '2021-05-20', 2),
    (26, 'M-2020', 'bellows, front', 'bought', 16, 0.48, 39.00, 4, '2021-06-01', 2),
    (27, 'M-2021', 'bellows, rear', 'bought', 16, 0.44, 37.00, 4, '2021-06-01', 2),
    (28, 'M-2022', 'T-slot table 700x220', 'made', 9, 38.2, 465.00, 2, '2021-04-28', 1),
    (29, 'M-2023', 'gib strip', 'made', 14, 0.29, 18.40, 22, '2021-05-20', 1),
    (30, 'M-3001', 'spindle housing', 'made', 10, 17.6, 384.00, 3, '2021-06-14', 1),
    (31, 'M-3002', 'spindle shaft', 'made', 5, 4.92, 356.00, 2, '2021-06-14', 1),
    (32, 'M-3003', 'spindle nose ring', 'made', 4, 0.58, 61.20, 6, '2021-06-14', 1),
    (33, 'M-3004', 'draw bar', 'made', 4, 0.71, 48.00, 5, '2021-06-21', 1),
    (34, 'M-3005', 'disc spring 28x14.2x1.5', 'standard', 4, 0.005, 0.62, 480, '2021-06-21', 1),
    (35, 'M-3006', 'angular contact bearing 7207', 'standard', 6, 0.28, 84.00, 8, '2021-06-14', 1),
    (36, 'M-3007', 'angular contact bearing 7206', 'standard', 6, 0.20, 71.50, 8, '2021-06-14', 1),
    (37, 'M-3008', 'deep groove bearing 6004-2RS', 'standard', 6, 0.069, 4.35, 40, '2021-05-10', 1),
    (38, 'M-3009', 'deep groove bearing 6201-2RS', 'standard', 6, 0.037, 2.95, 64, '2021-05-10', 1),
    (39, 'M-3010', 'spacer ring 35x42x8', 'made', 3, 0.02, 5.10, 30, '2021-06-21', 1),
    (40, 'M-3011', 'lock nut KM 7', 'standard', 3, 0.07, 3.40, 26, '2021-06-21', 1),
    (41, 'M-3012', 'lock washer MB 7', 'standard', 1, 0.01, 0.48, 70, '2021-06-21', 1),
    (42, 'M-3013', 'shaft seal 35x52x7', 'standard', 18, 0.02, 1.95, 45, '2021-06-21', 1),
    (43, 'M-3014', 'toothed belt pulley 36', 'bought', 11, 0.32, 22.70, 7, '2021-07-05', 1),
    (44, 'M-3015', 'toothed belt pulley 24', 'bought', 11, 0.19, 17.30, 7, '2021-07-05', 1),
    (45, 'M-3016', 'toothed belt 8M-640', 'standard', 18, 0.14, 15.60, 12, '2021-07-05', 1),
    (46, 'M-3017', 'belt cover', 'made', 1, 1.15, 19.90, 5, '2021-07-12', 1),
    (47, 'M-4001', 'servo motor 400 W', 'bought', NULL, 1.55, 238.00, 6, '2021-07-19', 5),
    (48, 'M-4002', 'servo motor 750 W, brake', 'bought', NULL, 3.05, 342.00, 2, '2021-07-19', 5),
    (49, 'M-4003', 'spindle motor 2.2 kW', 'bought', NULL, 14.8, 410.00, 2, '2021-07-19', 5),
    (50, 'M-4004', 'servo drive 400 W', 'bought', NULL, 0.85, 196.00, 5, '2021-07-19', 5),
    (51, 'M-4005', 'servo drive 750 W', 'bought', NULL, 1.10, 231.00, 3, '2021-07-19', 5),
    (52, 'M-4006', 'frequency inverter 2.2 kW', 'bought', NULL, 1.95, 287.00, 2, '2021-07-19', 5),
    (53, 'M-4007', 'control board', 'bought', NULL, 0.34, 520.00, 3, '2021-09-06', 5),
    (54, 'M-4008', 'power supply 24 V 10 A', 'bought', NULL, 0.74, 63.00, 7, '2021-07-26', 5),
    (55, 'M-4009', 'contactor 18 A', 'bought', NULL, 0.33, 24.50, 10, '2021-07-26', 5),
    (56, 'M-4010', 'emergency stop button', 'bought', NULL, 0.09, 13.80, 12, '2021-07-26', 5),
    (57, 'M-4011', 'inductive sensor M8', 'bought', NULL, 0.03, 17.90, 33, '2021-07-26', 5),
    (58, 'M-4012', 'door interlock switch', 'bought', NULL, 0.21, 49.00, 5, '2021-08-02', 5),
    (59, 'M-4013', 'enclosure 600x600x210', 'bought', 1, 21.4, 148.00, 2, '2021-08-02', 5),
    (60, 'M-4014', 'drag chain 25x57, 1 m', 'bought', 16, 0.94, 31.20, 9, '2021-08-09', 5),
    (61, 'M-4015', 'motor cable 4x1.5, 5 m', 'bought', NULL, 0.68, 27.40, 16, '2021-08-09', 5),
    (62, 'M-4016', 'encoder cable, 5 m', 'bought', NULL, 0.45, 33.10, 16, '2021-08-09', 5),
    (63, 'M-4017', 'operator panel', 'bought', NULL, 3.9, 395.00, 1, NULL, 5),
    (64, 'M-5001', 'coolant tank 40 l', 'made', 16, 5.6, 118.00, 2, '2021-08-16', 3),
    (65, 'M-5002', 'coolant pump 0.1 kW', 'bought', NULL, 4.3, 134.00, 2, '2021-08-16', 3),
    (66, 'M-5003', 'coolant hose 10 mm, 3 m', 'bought', 18, 0.52, 14.70, 6, '2021-08-16', 3),
    (67, 'M-5004', 'nozzle, swivelling', 'bought', 13, 0.08, 9.60, 11, '2021-08-16', 3),
    (68, 'M-5005', 'filter basket', 'made', 8, 0.37, 21.00, 5, '2021-08-23', 3),
    (69, 'M-5006', 'lubrication pump, manual', 'bought', NULL, 1.25, 58.00, 3, '2021-08-23', 3),
    (70, 'M-5007', 'lubrication distributor, 8 outlets', 'bought', 13, 0.36, 29.80, 4, '2021-08-23', 3),
    (71, 'M-5008', 'grease nipple M6', 'standard', 13, 0.006, 0.35, 190, '2021-08-23', 3),
    (72, 'M-6001', 'door, left', 'made', 1, 9.4, 126.00, 2, '2021-09-13', 3),
    (73, 'M-6002', 'door, right', 'made', 1, 9.4, 126.00, 2, '2021-09-13', 3),
    (74, 'M-6003', 'window 420x380', 'bought', NULL, 1.9, 54.00, 4, '2021-09-13', 3),
    (75, 'M-6004', 'gas spring 150 N', 'bought', NULL, 0.31, 18.20, 7, '2021-09-13', 3),
    (76, 'M-6005', 'hinge 60', 'standard', 7, 0.12, 4.90, 38, '2021-09-13', 3),
    (77, 'M-6006', 'work light LED', 'bought', NULL, 0.55, 42.00, 3, '2021-09-20', 5),
    (78, 'M-6007', 'type plate', 'made', 11, 0.02, NULL, 0, NULL, 7),
    (79, 'M-7001', 'tool holder ISO 30, ER 25', 'bought', 5, 0.52, 46.00, 10, '2021-10-04', 3),
    (80, 'M-7002', 'machine vice 125', 'bought', 10, 15.2, 210.00, 2, '2021-10-04', 3);

-- Fasteners: every size in every length that the catalogue has for it. The mass is that of the
-- shank and a head of usual height, the price follows from the mass.
CREATE TEMP TABLE thread (size TEXT, diameter REAL, shortest INTEGER, longest INTEGER);
INSERT INTO thread VALUES
    ('M4', 4, 10, 25), ('M5', 5, 10, 30), ('M6', 6, 12, 40), ('M8', 8, 16, 50),
    ('M10', 10, 20, 60), ('M12', 12, 25, 60);
CREATE TEMP TABLE length (mm INTEGER);
INSERT INTO length VALUES (10), (12), (16), (20), (25), (30), (40), (50), (60);

INSERT INTO part (number, name, kind, material_id, mass_kg, price_eur, stock, released,
                  responsible)
SELECT printf('S-%02d%02d', diameter, mm),
       'hex bolt ' || size || 'x' || mm,
       'standard',
       CASE WHEN diameter <= 5 THEN 7 ELSE 4 END,
       round(0.00000617 * diameter * diameter * (mm + 2.1 * diameter), 4),
       round(0.03 + 0.00003 * diameter * diameter * (mm + 2.1 * diameter), 2),
       200 + 40 * (mm * 7 % 11),
       '2020-11-02',
       4
FROM thread JOIN length ON mm BETWEEN shortest AND longest
ORDER BY diameter, mm;

INSERT INTO part (number, name, kind, material_id, mass_kg, price_eur, stock, released,
                  responsible)
SELECT printf('S-1%02d00', diameter), 'hex nut ' || size, 'standard',
       CASE WHEN diameter <= 5 THEN 7 ELSE 3 END,
       round(0.0000093 * diameter * diameter * diameter, 4),
       round(0.015 + 0.00004 * diameter * diameter * diameter, 3), 600, '2020-11-02', 4
FROM thread
UNION ALL
SELECT printf('S-2%02d00', diameter), 'washer ' || size, 'standard', 7,
       round(0.0000031 * diameter * diameter * diameter, 4),
       round(0.008 + 0.00001 * diameter * diameter * diameter, 3), 900, '2020-11-02', 4
FROM thread
ORDER BY 1;

CREATE TABLE assembly (
    id        INTEGER PRIMARY KEY,
    parent_id INTEGER REFERENCES assembly (id) ON DELETE CASCADE,
    position  INTEGER NOT NULL, -- among the parts of its parent
    number    TEXT NOT NULL UNIQUE,
    name      TEXT NOT NULL,
    quantity  INTEGER NOT NULL DEFAULT 1,
    UNIQUE (parent_id, position)
);
INSERT INTO assembly VALUES
    (1, NULL, 1, 'A-0000', 'milling machine FM 420', 1),
    (2, 1, 10, 'A-1000', 'machine frame', 1),
    (3, 1, 20, 'A-2000', 'axes', 1),
    (4, 3, 10, 'A-2100', 'X axis', 1),
    (5, 3, 20, 'A-2200', 'Y axis', 1),
    (6, 3, 30, 'A-2300', 'Z axis', 1),
    (7, 4, 10, 'A-2110', 'X drive', 1),
    (8, 5, 10, 'A-2210', 'Y drive', 1),
    (9, 6, 10, 'A-2310', 'Z drive', 1),
    (10, 1, 30, 'A-3000', 'spindle head', 1),
    (11, 10, 10, 'A-3100', 'spindle cartridge', 1),
    (12, 10, 20, 'A-3200', 'belt drive', 1),
    (13, 10, 30, 'A-3300', 'tool clamping', 1),
    (14, 1, 40, 'A-4000', 'electrics', 1),
    (15, 14, 10, 'A-4100', 'control cabinet', 1),
    (16, 14, 20, 'A-4200', 'wiring', 1),
    (17, 14, 30, 'A-4300', 'operator station', 1),
    (18, 1, 50, 'A-5000', 'fluids', 1),
    (19, 18, 10, 'A-5100', 'coolant circuit', 1),
    (20, 18, 20, 'A-5200', 'lubrication', 1),
    (21, 1, 60, 'A-6000', 'enclosure', 1),
    (22, 21, 10, 'A-6100', 'door', 2),
    (23, 1, 70, 'A-7000', 'accessories', 1),
    (24, NULL, 2, 'A-9000', 'transport rack', 1);

CREATE TABLE assembly_part (
    assembly_id INTEGER NOT NULL REFERENCES assembly (id) ON DELETE CASCADE,
    part_id     INTEGER NOT NULL REFERENCES part (id),
    quantity    INTEGER NOT NULL CHECK (quantity > 0),
    remark      TEXT,
    PRIMARY KEY (assembly_id, part_id)
) WITHOUT ROWID;
INSERT INTO assembly_part VALUES
    (2, 1, 1, NULL), (2, 2, 4, 'adjust with spirit level'), (2, 3, 1, NULL), (2, 4, 1, NULL),
    (2, 5, 1, NULL), (2, 6, 2, NULL),
    (4, 7, 1, NULL), (4, 10, 2, NULL), (4, 13, 4, NULL), (4, 25, 2, NULL), (4, 28, 1, NULL),
    (4, 29, 2, NULL),
    (5, 8, 1, NULL), (5, 11, 2, NULL), (5, 13, 4, NULL), (5, 25, 2, NULL), (5, 26, 1, NULL),
    (5, 27, 1, NULL),
    (6, 9, 1, NULL), (6, 12, 2, NULL), (6, 14, 4, NULL), (6, 25, 2, NULL),
    (7, 15, 1, NULL), (7, 18, 1, NULL), (7, 20, 1, NULL), (7, 21, 1, NULL), (7, 23, 1, NULL),
    (7, 24, 1, 'pin after alignment'), (7, 47, 1, NULL),
    (8, 16, 1, NULL), (8, 18, 1, NULL), (8, 20, 1, NULL), (8, 21, 1, NULL), (8, 23, 1, NULL),
    (8, 24, 1, 'pin after alignment'), (8, 47, 1, NULL),
    (9, 17, 1, NULL), (9, 19, 1, NULL), (9, 22, 1, NULL), (9, 21, 1, NULL), (9, 23, 1, NULL),
    (9, 24, 1, NULL), (9, 48, 1, 'with brake'),
    (11, 30, 1, NULL), (11, 31, 1, NULL), (11, 32, 1, NULL), (11, 35, 2, 'O arrangement'),
    (11, 36, 1, NULL), (11, 39, 2, 'ground as a pair'), (11, 40, 1, NULL), (11, 41, 1, NULL),
    (11, 42, 2, NULL),
    (12, 43, 1, NULL), (12, 44, 1, NULL), (12, 45, 1, NULL), (12, 46, 1, NULL), (12, 49, 1, NULL),
    (13, 33, 1, NULL), (13, 34, 24, '12 pairs'), (13, 37, 1, NULL),
    (15, 50, 2, NULL), (15, 51, 1, NULL), (15, 52, 1, NULL), (15, 53, 1, NULL), (15, 54, 1, NULL),
    (15, 55, 2, NULL), (15, 59, 1, NULL),
    (16, 57, 6, 'two for each axis'), (16, 58, 2, NULL), (16, 60, 3, NULL), (16, 61, 4, NULL),
    (16, 62, 3, NULL),
    (17, 56, 1, NULL), (17, 63, 1, NULL),
    (19, 64, 1, NULL), (19, 65, 1, NULL), (19, 66, 1, NULL), (19, 67, 2, NULL), (19, 68, 1, NULL),
    (20, 69, 1, NULL), (20, 70, 1, NULL), (20, 71, 16, NULL),
    (21, 77, 1, NULL), (21, 78, 1, NULL),
    (22, 72, 1, 'or M-6002 on the right'), (22, 74, 1, NULL), (22, 75, 1, NULL), (22, 76, 3, NULL),
    (23, 79, 4, NULL), (23, 80, 1, NULL),
    (24, 2, 4, NULL);
INSERT INTO assembly_part
SELECT need.assembly_id, part.id, need.quantity, NULL
FROM (SELECT 2 AS assembly_id, 'hex bolt M12x40' AS name, 16 AS quantity
      UNION ALL SELECT 2, 'washer M12', 16
      UNION ALL SELECT 4, 'hex bolt M5x16', 24 UNION ALL SELECT 4, 'hex bolt M5x20', 16
      UNION ALL SELECT 5, 'hex bolt M5x16', 20 UNION ALL SELECT 5, 'hex bolt M5x20', 16
      UNION ALL SELECT 6, 'hex bolt M6x20', 22 UNION ALL SELECT 6, 'hex bolt M6x25', 16
      UNION ALL SELECT 7, 'hex bolt M6x30', 8 UNION ALL SELECT 7, 'washer M6', 8
      UNION ALL SELECT 8, 'hex bolt M6x30', 8 UNION ALL SELECT 8, 'washer M6', 8
      UNION ALL SELECT 9, 'hex bolt M8x30', 8 UNION ALL SELECT 9, 'washer M8', 8
      UNION ALL SELECT 10, 'hex bolt M10x50', 6 UNION ALL SELECT 10, 'washer M10', 6
      UNION ALL SELECT 12, 'hex bolt M8x40', 4 UNION ALL SELECT 12, 'hex nut M8', 4
      UNION ALL SELECT 15, 'hex bolt M4x12', 18 UNION ALL SELECT 15, 'washer M4', 18
      UNION ALL SELECT 19, 'hex bolt M6x16', 4 UNION ALL SELECT 20, 'hex bolt M5x12', 4
      UNION ALL SELECT 22, 'hex bolt M5x10', 12 UNION ALL SELECT 22, 'hex nut M5', 12
      UNION ALL SELECT 24, 'hex bolt M12x60', 8 UNION ALL SELECT 24, 'hex nut M12', 8) AS need
JOIN part USING (name);

CREATE TABLE part_supplier (
    part_id     INTEGER NOT NULL REFERENCES part (id),
    supplier_id INTEGER NOT NULL REFERENCES supplier (id),
    order_code  TEXT,
    price_eur   REAL NOT NULL,
    lead_days   INTEGER NOT NULL,
    PRIMARY KEY (part_id, supplier_id)
);
INSERT INTO part_supplier VALUES
    (2, 1, 'NF-LF-60', 11.90, 10), (4, 10, 'FB-212', 1480.00, 56), (5, 2, NULL, 1120.00, 42),
    (5, 13, 'OMC-0417', 1065.00, 63), (7, 2, NULL, 515.00, 35), (8, 2, NULL, 548.00, 35),
    (9, 13, 'OMC-0422', 418.00, 49), (10, 5, 'LR20-620', 74.20, 28), (11, 5, 'LR20-480', 61.00, 28),
    (12, 5, 'LR25-540', 92.40, 28), (13, 5, 'LC20', 38.60, 21), (13, 3, 'BB-LC20', 35.90, 30),
    (14, 5, 'LC25', 46.10, 21), (15, 5, 'BS1605-640', 188.00, 35), (16, 5, 'BS1605-500', 169.00, 35),
    (17, 5, 'BS2005-560', 214.00, 35), (18, 5, 'BN1605', 96.00, 35), (19, 5, 'BN2005', 118.00, 35),
    (20, 3, 'BB-FK12', 57.30, 14), (21, 3, 'BB-FF12', 33.90, 14), (22, 3, 'BB-FK15', 66.80, 14),
    (24, 8, 'KD-C1014', 27.50, 7), (26, 7, 'PD-F-226', 39.00, 20), (27, 7, 'PD-F-227', 37.00, 20),
    (30, 2, NULL, 384.00, 35), (31, 14, 'AP-3002-B', 356.00, 28), (32, 14, 'AP-3003-A', 61.20, 28),
    (35, 3, '7207-B', 84.00, 12), (35, 5, '7207-C/P4', 129.00, 40), (36, 3, '7206-B', 71.50, 12),
    (37, 3, '6004-2RS', 4.35, 5), (38, 3, '6201-2RS', 2.95, 5), (40, 3, 'KM7', 3.40, 5),
    (42, 12, 'SSV-35527', 1.95, 9), (43, 8, 'KD-P36-8M', 22.70, 10), (44, 8, 'KD-P24-8M', 17.30, 10),
    (45, 8, 'KD-8M-640', 15.60, 10), (47, 8, 'KD-S400', 238.00, 18), (48, 8, 'KD-S750B', 342.00, 25),
    (49, 8, 'KD-A2200', 410.00, 18), (50, 8, 'KD-D400', 196.00, 18), (51, 8, 'KD-D750', 231.00, 18),
    (52, 8, 'KD-F2200', 287.00, 18), (53, 9, 'AS-CB-3', 520.00, 45), (57, 9, 'AS-IM8-2', 17.90, 8),
    (58, 9, 'AS-DI-1', 49.00, 12), (59, 6, 'LCL-E6621', 148.00, 15), (60, 11, 'CC-DC2557', 31.20, 6),
    (61, 11, 'CC-M415-5', 27.40, 6), (62, 11, 'CC-E-5', 33.10, 6), (64, 7, NULL, 118.00, 24),
    (66, 12, 'SSV-H10-3', 14.70, 9), (72, 6, 'LCL-6001', 126.00, 15), (73, 6, 'LCL-6002', 126.00, 15),
    (79, 14, 'AP-ISO30', 46.00, 12);
INSERT INTO part_supplier
SELECT id, 1, replace(number, 'S-', 'NF-'), price_eur, 3 FROM part WHERE number LIKE 'S-%';

CREATE TABLE document (
    id        INTEGER PRIMARY KEY,
    title     TEXT NOT NULL,
    kind      TEXT NOT NULL,
    revision  TEXT NOT NULL,
    pages     INTEGER,
    author_id INTEGER REFERENCES person (id),
    modified  TEXT NOT NULL,
    checksum  BLOB -- of the file as it was filed
);
INSERT INTO document VALUES
    (1, 'Assembly drawing FM 420', 'drawing', 'C', 4, 1, '2021-10-11 09:42', x'9f1c44d2a07be853'),
    (2, 'Machine frame, weldment', 'drawing', 'B', 2, 1, '2021-02-09 16:20', x'03aa71c5de8f2096'),
    (3, 'Machine bed, grinding specification', 'specification', 'A', 3, 1, '2021-02-25 11:05', x'5e00b7419c2d6f18'),
    (4, 'X axis', 'drawing', 'C', 2, 2, '2021-06-02 08:31', x'd14be2c90a7735fe'),
    (5, 'Y axis', 'drawing', 'C', 2, 2, '2021-06-02 10:14', x'7729f0ab16c8e35d'),
    (6, 'Z axis', 'drawing', 'B', 2, 2, '2021-06-03 14:57', x'c3a9185f40d2be67'),
    (7, 'Ball screw alignment', 'instruction', 'B', 6, 3, '2021-07-20 13:00', x'48e7d01b9c35fa62'),
    (8, 'Spindle cartridge', 'drawing', 'D', 3, 1, '2021-09-27 17:48', x'b2617fc84e09d3a5'),
    (9, 'Spindle run-in procedure', 'instruction', 'A', 5, 6, '2021-10-01 09:09', x'16d8c4e07b92af53'),
    (10, 'Spindle bearing calculation', 'calculation', 'B', 11, 1, '2021-06-11 15:36', x'ea504f9bd23c8716'),
    (11, 'Circuit diagram', 'drawing', 'E', 24, 5, '2021-11-15 12:22', x'0f93b6d8127ca4e5'),
    (12, 'Wiring list', 'list', 'C', 7, 5, '2021-11-15 12:40', x'62c70ea5f84b1d93'),
    (13, '操作盤 配置図', 'drawing', 'A', 1, 5, '2021-11-18 10:03', NULL),
    (14, 'Coolant circuit', 'drawing', 'A', 1, 3, '2021-08-16 08:55', x'8db43a7ce1f56029'),
    (15, 'Lubrication plan', 'instruction', 'A', 2, 8, '2021-08-30 14:11', x'35f2098ea6c7bd41'),
    (16, 'Risk assessment', 'certificate', 'B', 38, 6, '2021-12-01 16:30', x'fc7e5180d94a32b6'),
    (17, 'Declaration of conformity', 'certificate', 'A', 1, 6, '2021-12-06 09:00', x'219ab56cf38ed074'),
    (18, 'Geometric acceptance test', 'record', 'A', 9, 6, '2021-12-03 11:47', x'7be35dc204f81a96'),
    (19, 'Operating manual', 'manual', 'B', 112, 7, '2022-01-17 15:15', x'a60d84f1c97be352'),
    (20, 'Service manual', 'manual', 'A', 76, 8, '2022-01-24 10:28', x'd95c13be702f84a6'),
    (21, 'Spare parts list', 'list', 'A', 14, 8, '2022-01-24 11:02', x'4e1fa9d7358cb062'),
    (22, 'Transport and lifting', 'instruction', 'A', 3, 7, '2022-02-02 13:37', NULL);

CREATE TABLE part_document (
    part_id     INTEGER NOT NULL REFERENCES part (id),
    document_id INTEGER NOT NULL REFERENCES document (id) ON DELETE CASCADE,
    PRIMARY KEY (part_id, document_id)
) WITHOUT ROWID;
INSERT INTO part_document VALUES
    (1, 2), (2, 22), (4, 3), (4, 18), (7, 4), (10, 4), (13, 4), (15, 4), (15, 7), (16, 5), (16, 7),
    (17, 6), (17, 7), (8, 5), (11, 5), (9, 6), (12, 6), (14, 6), (30, 8), (31, 8), (31, 10), (32, 8),
    (33, 8), (35, 8), (35, 10), (36, 10), (31, 9), (47, 11), (48, 11), (49, 11), (50, 11), (51, 11),
    (52, 11), (53, 11), (53, 12), (54, 11), (55, 11), (61, 12), (62, 12), (63, 13), (64, 14),
    (65, 14), (66, 14), (67, 14), (69, 15), (70, 15), (71, 15), (78, 17);

CREATE TABLE change_order (
    id          INTEGER PRIMARY KEY,
    part_id     INTEGER REFERENCES part (id),
    opened      TEXT NOT NULL,
    closed      TEXT, -- null: open
    person_id   INTEGER NOT NULL REFERENCES person (id),
    description TEXT NOT NULL
);
INSERT INTO change_order VALUES
    (1, 1, '2021-03-22', '2021-04-01', 3, 'Move the lifting eyes 40 mm outwards'),
    (2, 31, '2021-07-02', '2021-09-24', 6, 'Runout above 3 µm: grind the bearing seats between centres'),
    (3, 25, '2021-07-08', '2021-07-09', 2, 'Cam of POM instead of brass, it was too loud'),
    (4, 64, '2021-09-01', '2021-10-19', 3, 'Add a drain plug G 1/2'),
    (5, 13, '2021-09-15', NULL, 4, 'Approve the second source'),
    (6, 46, '2021-09-29', '2021-10-06', 8, 'Slot for tensioning without removing the cover'),
    (7, 63, '2021-11-18', NULL, 5, 'Panel layout: feed override to the left hand'),
    (8, 78, '2021-12-06', NULL, 7, 'Type plate: wait for the serial number scheme'),
    (9, 72, '2022-01-12', '2022-02-08', 8, 'Stiffen the handle side, the door rattles above 12 000 rpm'),
    (10, 35, '2022-02-21', NULL, 1, 'Try P4 bearings in the next three machines'),
    (11, NULL, '2022-03-03', NULL, 6, 'Inspection plan for all castings');

CREATE TABLE purchase_order (
    id          INTEGER PRIMARY KEY,
    number      TEXT NOT NULL UNIQUE,
    supplier_id INTEGER NOT NULL REFERENCES supplier (id),
    buyer_id    INTEGER NOT NULL REFERENCES person (id),
    ordered     TEXT NOT NULL,
    delivered   TEXT -- null: on its way
);
INSERT INTO purchase_order VALUES
    (1, 'PO-22-001', 5, 4, '2022-01-10', '2022-02-15'), (2, 'PO-22-002', 3, 4, '2022-01-10', '2022-01-25'),
    (3, 'PO-22-003', 8, 4, '2022-01-17', '2022-02-04'), (4, 'PO-22-004', 1, 4, '2022-01-31', '2022-02-03'),
    (5, 'PO-22-005', 2, 4, '2022-02-07', '2022-03-16'), (6, 'PO-22-006', 10, 4, '2022-02-07', NULL),
    (7, 'PO-22-007', 9, 5, '2022-02-14', NULL), (8, 'PO-22-008', 11, 5, '2022-02-28', '2022-03-07'),
    (9, 'PO-22-009', 6, 3, '2022-03-02', NULL), (10, 'PO-22-010', 1, 4, '2022-03-09', NULL);

CREATE TABLE order_line (
    order_id  INTEGER NOT NULL REFERENCES purchase_order (id) ON DELETE CASCADE,
    line      INTEGER NOT NULL,
    part_id   INTEGER NOT NULL REFERENCES part (id),
    quantity  INTEGER NOT NULL,
    price_eur REAL NOT NULL,
    PRIMARY KEY (order_id, line)
) WITHOUT ROWID;
INSERT INTO order_line VALUES
    (1, 1, 10, 6, 74.2), (1, 2, 11, 6, 61.0), (1, 3, 12, 6, 92.4), (1, 4, 13, 24, 38.6),
    (1, 5, 14, 12, 46.1), (1, 6, 15, 3, 188.0), (1, 7, 16, 3, 169.0), (1, 8, 17, 3, 214.0),
    (2, 1, 20, 6, 57.3), (2, 2, 21, 9, 33.9), (2, 3, 22, 3, 66.8), (2, 4, 35, 6, 84.0),
    (2, 5, 36, 3, 71.5), (2, 6, 37, 20, 4.35), (3, 1, 47, 6, 238.0), (3, 2, 48, 3, 342.0),
    (3, 3, 49, 3, 410.0), (3, 4, 50, 6, 196.0), (3, 5, 51, 3, 231.0), (3, 6, 52, 3, 287.0),
    (5, 1, 5, 2, 1120.0), (5, 2, 7, 3, 515.0), (5, 3, 8, 3, 548.0), (5, 4, 30, 3, 384.0),
    (6, 1, 4, 3, 1480.0), (7, 1, 53, 3, 520.0), (7, 2, 57, 18, 17.9), (7, 3, 58, 6, 49.0),
    (8, 1, 60, 9, 31.2), (8, 2, 61, 12, 27.4), (8, 3, 62, 9, 33.1), (9, 1, 59, 3, 148.0),
    (9, 2, 72, 3, 126.0), (9, 3, 73, 3, 126.0);
INSERT INTO order_line
SELECT orders.id, row_number() OVER (PARTITION BY orders.id ORDER BY part.number), part.id,
       500, part.price_eur
FROM (SELECT 4 AS id, 'hex bolt M5%' AS pattern UNION ALL SELECT 10, 'hex bolt M6%') AS orders
JOIN part ON part.name LIKE orders.pattern;

-- What goes into one machine, with the place of each part and how many of it there are.
CREATE VIEW bill_of_materials AS
WITH RECURSIVE placed (id, path, quantity) AS (
    SELECT id, name, quantity FROM assembly WHERE parent_id IS NULL
    UNION ALL
    SELECT assembly.id, placed.path || ' / ' || assembly.name, placed.quantity * assembly.quantity
    FROM placed JOIN assembly ON assembly.parent_id = placed.id
)
SELECT part.name AS name, part.number, placed.path AS place,
       placed.quantity * assembly_part.quantity AS quantity,
       round(placed.quantity * assembly_part.quantity * part.mass_kg, 3) AS mass_kg,
       round(placed.quantity * assembly_part.quantity * part.price_eur, 2) AS price_eur
FROM placed
JOIN assembly_part ON assembly_part.assembly_id = placed.id
JOIN part ON part.id = assembly_part.part_id
ORDER BY placed.path, part.number;

-- Orders that have not arrived.
CREATE VIEW open_order AS
SELECT purchase_order.number, supplier.name AS supplier, purchase_order.ordered,
       count(*) AS lines, round(sum(quantity * price_eur), 2) AS total_eur
FROM purchase_order
JOIN supplier ON supplier.id = purchase_order.supplier_id
JOIN order_line ON order_line.order_id = purchase_order.id
WHERE purchase_order.delivered IS NULL
GROUP BY purchase_order.id;

CREATE INDEX part_by_name ON part (name);
CREATE INDEX order_line_by_part ON order_line (part_id);

DROP TABLE temp.thread;
DROP TABLE temp.length;
COMMIT;
