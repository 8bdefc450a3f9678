-- Saves the present state of the database, so that changes/ can show what has changed since.
-- The terminals have fetched their queue by then.
UPDATE term SET syn = 0;
DELETE FROM term_sync;
CREATE OR REPLACE DATABASE demo_before CHARACTER SET utf8mb4;
CREATE TABLE demo_before.people SELECT * FROM people;
CREATE TABLE demo_before.people_pam SELECT * FROM people_pam;
CREATE TABLE demo_before.people_term SELECT * FROM people_term;
CREATE TABLE demo_before.brape SELECT * FROM brape;
CREATE TABLE demo_before.groups_plan SELECT * FROM groups_plan;
CREATE TABLE demo_before.atten SELECT * FROM atten;
CREATE TABLE demo_before.funds_move SELECT * FROM funds_move;
CREATE TABLE demo_before.admins_people SELECT * FROM admins_people;
