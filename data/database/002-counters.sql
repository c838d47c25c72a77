-- Counters that all users share. They say how often, never by whom.
--
-- A caller appends to a log and waits for no other caller, however popular the title. What is in the log is folded into
-- the counters in batches, by readers and now and then by a writer.

set local role guide_owner;
set local search_path = guide;

alter table limits
    -- Counters below this are given to nobody.
    add minimum bigint not null default 3,
    add title_bytes integer not null default 1000,
    add largest_amount integer not null default 10,
    add batch_size integer not null default 1000,
    add increments_per_hour integer not null default 2000,
    add counters_kept bigint not null default 1000000,
    add counter_days integer not null default 365;
alter table members
    add counting_hour timestamptz not null default now(),
    add increments integer not null default 0;
alter table devices add last_batch uuid;

create table counters (
    title text collate "C" primary key,
    count bigint not null,
    modified timestamptz not null,
    -- Whether the count reaches the minimum.
    popular boolean not null
);
create index counters_popular on counters (modified desc, title) where popular;
create index counters_modified on counters (modified);

create table increments (
    -- Of the title, so that the increments of a title are in one bucket.
    bucket smallint not null,
    id bigint generated always as identity,
    title text collate "C" not null,
    amount integer not null,
    makes_missing boolean not null,
    removes_below_one boolean not null,
    made timestamptz not null default clock_timestamp(),
    primary key (bucket, id)
) with (autovacuum_vacuum_scale_factor = 0, autovacuum_vacuum_threshold = 20000);

-- Whoever folds a bucket holds its row.
create table buckets (bucket smallint primary key);
insert into buckets select generate_series(0, 15);

create table upkeep (
    only_row boolean primary key default true check (only_row),
    pruned timestamptz not null default now()
);
insert into upkeep default values;

create function next_count(count bigint, amount bigint, makes_missing boolean, removes_below_one boolean)
returns bigint language sql immutable as $$
    select case when count is null then case when makes_missing then amount end
                when removes_below_one and count + amount < 1 then null
                else count + amount end
$$;
-- Applies increments in order; null is no counter.
create aggregate folded_count(bigint, boolean, boolean) (sfunc = next_count, stype = bigint);

-- Folds at most so many increments, of buckets that nobody else folds now. Returns how many.
create function fold(p_most integer) returns bigint
language plpgsql security definer set search_path = guide, pg_temp as $$
declare
    held smallint[];
    folded bigint;
begin
    held := array(select bucket from buckets order by bucket for update skip locked);
    with taken as (
        delete from increments i
            using (select bucket, id from increments where bucket = any (held) order by bucket, id limit p_most) t
            where i.bucket = t.bucket and i.id = t.id
            returning i.*
    ), steps as (
        select title, id, amount::bigint, makes_missing, removes_below_one, made from taken
        union all
        select c.title, 0, c.count, true, false, null from counters c where c.title in (select title from taken)
    ), sums as (
        select title, folded_count(amount, makes_missing, removes_below_one order by id) as count, max(made) as made
            from steps group by title
    ), removed as (
        delete from counters c using sums s where c.title = s.title and s.count is null
    ), stored as (
        insert into counters (title, count, modified, popular)
            select s.title, s.count, s.made, s.count >= l.minimum from sums s, limits l where s.count is not null
            on conflict (title) do update
                set count = excluded.count, modified = excluded.modified, popular = excluded.popular
    )
    select count(*) into folded from taken;
    return folded;
end $$;

-- Removes the counters that were changed least recently, as far as the limits say, once a day.
create function prune() returns void
language plpgsql security definer set search_path = guide, pg_temp as $$
begin
    perform from upkeep where pruned < now() - interval '1 day' for update skip locked;
    if not found then
        return;
    end if;
    update upkeep set pruned = now();
    delete from counters c using limits l where c.modified < now() - make_interval(days => l.counter_days);
    delete from counters where modified <
        (select modified from counters order by modified desc
            offset (select counters_kept - 1 from limits) limit 1);
end $$;

-- Counts a batch in its order. A batch that was counted already is not counted again.
create function count_batch(p_session uuid, p_batch uuid, p_titles text[], p_amounts integer[],
                            p_makes_missing boolean[], p_removes_below_one boolean[]) returns void
language plpgsql security definer set search_path = guide, pg_temp as $$
declare
    most limits;
    size integer := cardinality(p_titles);
    used integer;
begin
    update devices set last_batch = p_batch
        where owner = session_user and session = p_session and last_batch is distinct from p_batch;
    if not found then
        if exists (select from devices where owner = session_user and session = p_session) then
            return;
        end if;
        raise exception 'unknown session' using errcode = 'no_data_found';
    end if;
    select * into most from limits;
    if size > most.batch_size or cardinality(p_amounts) <> size or cardinality(p_makes_missing) <> size
        or cardinality(p_removes_below_one) <> size
        or exists (select from unnest(p_titles, p_amounts) u (title, amount)
                   where (octet_length(title) <= most.title_bytes
                          and amount between -most.largest_amount and most.largest_amount) is not true) then
        raise exception 'a title, an amount or the batch is too large' using errcode = 'program_limit_exceeded';
    end if;
    update members
        set counting_hour = case when counting_hour < now() - interval '1 hour' then now() else counting_hour end,
            increments = case when counting_hour < now() - interval '1 hour' then 0 else increments end + size
        where owner = session_user returning increments into used;
    if used > most.increments_per_hour then
        raise exception 'too many increments in one hour' using errcode = 'configuration_limit_exceeded';
    end if;
    insert into increments (bucket, title, amount, makes_missing, removes_below_one)
        select hashtext(title) & 15, title, amount, makes, removes
            from unnest(p_titles, p_amounts, p_makes_missing, p_removes_below_one)
                with ordinality u (title, amount, makes, removes, place)
            order by place;
    if random() * 256 < size then
        perform fold(5000);
        perform prune();
    end if;
end $$;

create function counter(p_title text, out count bigint, out modified timestamptz) returns setof record
language plpgsql security definer set search_path = guide, pg_temp as $$
begin
    perform fold(1000);
    return query select c.count, c.modified from counters c where c.title = p_title and c.popular;
end $$;

create function popular_counters(p_limit bigint, out title text, out count bigint, out modified timestamptz)
returns setof record language plpgsql security definer set search_path = guide, pg_temp as $$
begin
    perform fold(1000);
    return query select c.title, c.count, c.modified from counters c where c.popular
        order by c.modified desc, c.title limit least(p_limit, 1000);
end $$;

create function minimum_changed() returns trigger
language plpgsql security definer set search_path = guide, pg_temp as $$
begin
    update counters set popular = count >= new.minimum where popular <> (count >= new.minimum);
    return null;
end $$;
create trigger minimum_changed after update of minimum on limits for each row execute function minimum_changed();

grant execute on function count_batch, counter, popular_counters to guide_member;
