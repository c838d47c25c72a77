-- Roles, limits, and the values of each user.
--
-- guide_owner owns everything and cannot log in. The roles of users belong to guide_member. Row-level security, which
-- binds the owner of the tables too, gives each of them its own rows only; they change rows only through functions.
-- session_user is the role that logged in, whatever a function or SET ROLE makes of current_user.

do $$
begin
    if not exists (select from pg_roles where rolname = 'guide_owner') then
        create role guide_owner nologin;
    end if;
    if not exists (select from pg_roles where rolname = 'guide_member') then
        create role guide_member nologin;
    end if;
    execute format('grant guide_owner to %I', current_user);
    execute format('revoke all on database %I from public', current_database());
    execute format('grant connect on database %I to guide_member', current_database());
end $$;

-- What anybody who is connected could otherwise fill a disk or the table of locks with.
do $$
begin
    revoke all on schema public from public;
    if not (select rolsuper from pg_roles where rolname = current_user) then
        raise warning 'users can make large objects and take advisory locks: only a superuser can forbid it';
        return;
    end if;
    revoke execute on function lo_create(oid), lo_creat(integer), lo_from_bytea(oid, bytea) from public;
    revoke execute on function
        pg_advisory_lock(bigint), pg_advisory_lock(integer, integer), pg_advisory_lock_shared(bigint),
        pg_advisory_lock_shared(integer, integer), pg_try_advisory_lock(bigint),
        pg_try_advisory_lock(integer, integer), pg_try_advisory_lock_shared(bigint),
        pg_try_advisory_lock_shared(integer, integer), pg_advisory_xact_lock(bigint),
        pg_advisory_xact_lock(integer, integer), pg_advisory_xact_lock_shared(bigint),
        pg_advisory_xact_lock_shared(integer, integer), pg_try_advisory_xact_lock(bigint),
        pg_try_advisory_xact_lock(integer, integer), pg_try_advisory_xact_lock_shared(bigint),
        pg_try_advisory_xact_lock_shared(integer, integer)
        from public;
end $$;

create schema guide authorization guide_owner;
set local role guide_owner;
set local search_path = guide;

alter default privileges in schema guide revoke execute on functions from public;
alter default privileges revoke execute on functions from public;
grant usage on schema guide to guide_member;

-- What the administrator may change: update guide.limits set minimum = 5;
create table limits (
    only_row boolean primary key default true check (only_row),
    value_bytes integer not null default 4194304,
    key_bytes integer not null default 200,
    keys_per_user integer not null default 64,
    bytes_per_user bigint not null default 16777216,
    devices_per_user integer not null default 32,
    device_name_bytes integer not null default 200,
    writes_per_hour integer not null default 3600
);
insert into limits default values;

create table members (
    owner name primary key default session_user,
    -- Where this user's changes are announced. Nobody else can guess it, so nobody can listen or make noise there.
    channel text not null default 'guide_' || replace(gen_random_uuid()::text, '-', ''),
    hour timestamptz not null default now(),
    writes integer not null default 0
);

create table devices (
    owner name not null default session_user,
    device uuid not null,
    -- Of the device's newest connection. What an older one sent and was delayed on the way comes too late.
    session uuid not null default gen_random_uuid(),
    name text not null,
    seen timestamptz not null default now(),
    wrote timestamptz,
    -- A write whose answer was lost is sent again with the same id.
    last_write uuid,
    primary key (owner, device)
);

create table user_values (
    owner name not null default session_user,
    key text collate "C" not null,
    value bytea not null,
    -- The write that made the value, and its device.
    write uuid not null,
    device uuid not null,
    primary key (owner, key)
);

alter table members enable row level security;
alter table members force row level security;
create policy own on members using (owner = session_user) with check (owner = session_user);
alter table devices enable row level security;
alter table devices force row level security;
create policy own on devices using (owner = session_user) with check (owner = session_user);
alter table user_values enable row level security;
alter table user_values force row level security;
create policy own on user_values using (owner = session_user) with check (owner = session_user);
grant select on devices, user_values to guide_member;

-- Registers a device of the caller and says where changes are announced and what may be stored.
create function hello(p_device uuid, p_name text, out session uuid, out channel text, out value_bytes integer,
                      out key_bytes integer)
language plpgsql security definer set search_path = guide, pg_temp as $$
declare
    most limits;
begin
    select * into most from limits;
    insert into members default values on conflict do nothing;
    select m.channel into channel from members m where owner = session_user for update;
    insert into devices (device, name)
        values (p_device, left(p_name, most.device_name_bytes / 4))
        on conflict (owner, device) do update set name = excluded.name, seen = now(), session = excluded.session
        returning devices.session into session;
    delete from devices d where owner = session_user and d.device in (
        select o.device from devices o where o.owner = session_user
        order by o.device = p_device desc, o.seen desc offset most.devices_per_user);
    value_bytes := most.value_bytes;
    key_bytes := most.key_bytes;
end $$;

-- Stores a value of the caller, or removes it (null). An equal value is not stored. Returns the write that made the
-- value that is there now.
create function set_value(p_session uuid, p_write uuid, p_key text, p_value bytea) returns uuid
language plpgsql security definer set search_path = guide, pg_temp as $$
declare
    most limits;
    member members;
    device devices;
    old user_values;
    bytes bigint;
    keys bigint;
begin
    select * into most from limits;
    -- The writes of one user happen one after another.
    select * into member from members where owner = session_user for update;
    select * into device from devices d where d.owner = session_user and d.session = p_session;
    if device is null or member is null then
        raise exception 'unknown session' using errcode = 'no_data_found';
    end if;
    select * into old from user_values v where v.owner = session_user and v.key = p_key;
    if device.last_write = p_write or old.value is not distinct from p_value then
        return old.write;
    end if;
    if p_value is not null then
        select coalesce(sum(octet_length(value)), 0), count(*) into bytes, keys
            from user_values v where v.owner = session_user and v.key <> p_key;
        if octet_length(p_key) > most.key_bytes or octet_length(p_value) > most.value_bytes
            or bytes + octet_length(p_value) > most.bytes_per_user or keys >= most.keys_per_user then
            raise exception 'the value, its key or all values together are too large'
                using errcode = 'program_limit_exceeded';
        end if;
    end if;
    if member.hour < now() - interval '1 hour' then
        update members set hour = now(), writes = 1 where owner = session_user;
    elsif member.writes >= most.writes_per_hour then
        raise exception 'too many writes in one hour' using errcode = 'configuration_limit_exceeded';
    else
        update members set writes = writes + 1 where owner = session_user;
    end if;
    update devices d set last_write = p_write, wrote = now(), seen = now()
        where d.owner = session_user and d.session = p_session;
    if p_value is null then
        delete from user_values v where v.owner = session_user and v.key = p_key;
    else
        insert into user_values (key, value, write, device) values (p_key, p_value, p_write, device.device)
            on conflict (owner, key) do update set value = excluded.value, write = excluded.write, device = excluded.device;
    end if;
    return case when p_value is not null then p_write end;
end $$;

-- Tells the caller's devices to look for changes. Apart from set_value, because transactions that announce something
-- are committed one after another, with all that they wait for.
create function announce() returns void
language sql security definer set search_path = guide, pg_temp as $$
    select pg_notify(channel, '') from members where owner = session_user
$$;

grant execute on function hello, set_value, announce to guide_member;

-- For administrators: makes a user, or gives one another password. The password is a verifier, so that it is not
-- logged.
reset role;
create function guide.set_user(p_name name, p_verifier text) returns void
language plpgsql set search_path = pg_catalog, pg_temp as $$
begin
    if p_name !~ '^[a-z][a-z0-9_]{0,40}$' or p_name ~ '^(pg_|guide_)' then
        raise exception 'the name of a user begins with a small letter, has at most 41 small letters, digits and "_", and does not begin with pg_ or guide_'
            using errcode = 'invalid_parameter_value';
    end if;
    if not exists (select from pg_roles where rolname = p_name) then
        execute format('create role %I login in role guide_member connection limit 40', p_name);
        execute format('alter role %I set statement_timeout = ''30s''', p_name);
        execute format('alter role %I set idle_in_transaction_session_timeout = ''60s''', p_name);
        begin
            execute format('alter role %I set temp_file_limit = ''64MB''', p_name);
        exception when insufficient_privilege then
            raise warning 'the temporary files of % are not limited: only a superuser can do it', p_name;
        end;
    elsif not exists (
        select from pg_auth_members a join pg_roles m on m.oid = a.member join pg_roles r on r.oid = a.roleid
        where m.rolname = p_name and r.rolname = 'guide_member' and not m.rolsuper and not m.rolcreaterole) then
        raise exception 'the role % is not one of a user of the guide', p_name
            using errcode = 'invalid_parameter_value';
    end if;
    execute format('alter role %I password %L', p_name, p_verifier);
end $$;
revoke execute on function guide.set_user from public;
