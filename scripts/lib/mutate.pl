# Changes one cell, sign or bound of the pure libraries at a time and looks whether a test notices. Called by
# scripts/mutate with a copy of the tree, its build folder, the report, the size of the sample and its seed; with
# "survivors" for the size, those that survived are tried again.
use strict;
use warnings;

my ($tree, $build, $report, $wanted, $seed) = @ARGV;
# Seconds of processor time, so that a busy machine makes no mutant a slow one; who waits in vain is ended after a while.
my $firstTimeOut = 60;
my $timeOut      = 300;
my $patience     = 1800;
my $memoryLimit  = 4_000_000; # KiB: a mutant without an end must not take the machine's memory

# The unit tests of each library, the scenarios of each source by the beginning of their names.
my %unitTests = (
    qf_core         => ['core_tests'],
    qf_client       => ['client_tests'],
    qf_gamedata     => [qw(gamedata_tests explorer_tests clothing_tests dye_tests)],
    qf_world        => [qw(world_database_tests world_loader_tests world_extraction_tests world_template_tests
                           world_round_trip_tests)],
    qf_construction => ['construction_tests'],
    qf_items        => ['items_tests'],
    qf_console      => [qw(console_tests shipped_texts_tests)],
    qf_settings     => ['settings_tests'],
    qf_app_core     => [qw(app_tests options_tests program_folder_tests)],
    qf_setup_choice => ['setup_tests'],
);
my @scenarioBeginnings = (
    [qr/^(gm_commands|travel|spawners)/           => ['console_']],
    [qr/^npc_wander/                              => ['npc_wander']],
    [qr/^npc/                                     => ['npc', 'console_npcs']],
    [qr/^(items|words)/                           => ['items_']],
    [qr/^special/                                 => ['special']],
    [qr/^(chain|commands|height)\./               => ['construction', 'chain', 'floors', 'caves', 'walls_heights']],
    [qr/^(catalogue|explorer|bitmap)/             => ['item_explorer']],
    [qr/^(hues|dye)/                              => ['dye']],
    [qr/^(art|byte_source)/                       => ['art_', 'picture']],
    [qr/^clothing/                                => ['clothing']],
    [qr/^(extraction|cover|item_types|item_table)/ => ['house_extraction']],
    [qr/^template/                                => ['house_templates']],
    [qr/^(database|sql_shape|text_lines|world_)/  => ['world_', 'house_']],
    [qr/^(client_process|delivery|location|calibration)/ => ['delivery', 'calibration', 'construction']],
    [qr/^external_tools/                          => ['console_tools', 'main']],
    [qr/^options/                                 => ['options']],
    [qr/^(settings|store|file_settings)/          => ['options', 'startup']],
);

sub Read {
    my ($file) = @_;
    open my $stream, '<:raw', $file or die "$file: $!\n";
    local $/;
    return scalar <$stream>;
}

sub Write {
    my ($file, $text) = @_;
    open my $stream, '>:raw', $file or die "$file: $!\n";
    print $stream $text;
    close $stream or die "$file: $!\n";
}

# The scenarios that touch a library; what every panel stands on is tried with every scenario.
my %scenariosOf = (
    qf_core         => [''],
    qf_client       => [''],
    qf_gamedata     => [qw(art_ clothing dye item_explorer picture)],
    qf_world        => [qw(house_ startup world_)],
    qf_construction => [qw(caves chain coastlines construction floors forests landscapes roof stairs walls)],
    qf_items        => [qw(chain item_pos items_ light_source special)],
    qf_console      => [qw(area_commands console_ game_time item_type npc privileges shop shutdown wipe)],
    qf_settings     => [qw(console_custom main options startup)],
    qf_app_core     => [qw(main options startup)],
    qf_setup_choice => [],
);

# The pure libraries' sources, as the build knows them: library and file.
sub Sources {
    my @sources;
    my $commands = Read("$build/compile_commands.json");
    while ($commands =~ m{/CMakeFiles/(\w+)\.dir/[^"]*?\.o -c (\S+?)"}g) {
        my ($library, $file) = ($1, $2);
        next unless $unitTests{$library};
        push @sources, [$library, $file];
    }
    die "no sources in $build\n" unless @sources;
    return sort { $a->[1] cmp $b->[1] } @sources;
}

# Tokens of a source: kind, offset, text. Comments and the preprocessor's lines are left out.
sub Tokens {
    my ($text) = @_;
    my @tokens;
    pos($text) = 0;
    while (pos($text) < length $text) {
        if    ($text =~ /\G(?:\s+|\/\/[^\n]*|\/\*.*?\*\/)/gcs) { next }
        elsif ($text =~ /\G#(?:[^\n\\]|\\.)*/gcs)              { next }
        my $start = pos $text;
        my $kind;
        if    ($text =~ /\GR"\(.*?\)"/gcs)                         { $kind = 'raw' }
        elsif ($text =~ /\G"(?:[^"\\]|\\.)*"/gcs)                  { $kind = 'text' }
        elsif ($text =~ /\G'(?:[^'\\]|\\.)[^']*'/gcs)              { $kind = 'letter' }
        elsif ($text =~ /\G(?:0[xX][\da-fA-F']+|\d[\d']*(?:\.\d+)?(?:[eE][-+]?\d+)?)[uUlLfFzZ]*/gc) { $kind = 'number' }
        elsif ($text =~ /\G[A-Za-z_]\w*/gc)                        { $kind = 'word' }
        elsif ($text =~ /\G(?:<=>|<<=|>>=|->|::|<=|>=|==|!=|&&|\|\||\+\+|--|[-+*\/%&|^]=|.)/gcs) { $kind = 'sign' }
        push @tokens, [$kind, $start, substr($text, $start, pos($text) - $start)];
    }
    return @tokens;
}

my %otherSign = (
    '<'  => '<=', '<=' => '<',  '>'  => '>=', '>=' => '>',  '==' => '!=', '!=' => '==', '&&' => '||', '||' => '&&',
    '+'  => '-',  '-'  => '+',  '*'  => '/',  '/'  => '*',  '%'  => '/',  '+=' => '-=', '-=' => '+=',
    '++' => '--', '--' => '++',
);
my %otherWord = (true => 'false', false => 'true', Add32 => 'Subtract32', Subtract32 => 'Add32', min => 'max', max => 'min');

sub NextLetter {
    my ($letter) = @_;
    return chr(ord('0') + (ord($letter) - ord('0') + 1) % 10) if $letter =~ /\d/;
    my $first = ord($letter =~ /[a-z]/ ? 'a' : 'A');
    return chr($first + (ord($letter) - $first + 1) % 26);
}

# One letter or digit of a text other than it is; a tile number stays one.
sub OtherText {
    my ($text) = @_;
    my $inner = substr $text, 1, -1;
    return '"1"' if $inner eq '';
    if ($inner =~ /^[\da-fA-F ]{2,6}$/) {
        $inner =~ s/([\da-fA-F])( *)$/$1 eq '9' ? 'a' . $2 : lc $1 eq 'f' ? '0' . $2 : NextLetter($1) . $2/e;
        return "\"$inner\"";
    }
    my @places;
    while ($inner =~ /(\\.[0-7]*(?:(?<=x)[\da-fA-F]+)?)|([A-Za-z0-9])/g) {
        push @places, $-[2] if defined $2;
    }
    return undef unless @places;
    my $place = $places[unpack('%32C*', $inner) % @places];
    substr($inner, $place, 1) = NextLetter(substr $inner, $place, 1);
    return "\"$inner\"";
}

sub OtherNumber {
    my ($number) = @_;
    $number =~ s/'//g;
    if ($number =~ /^(0[xX])([\da-fA-F]+)([uUlLzZ]*)$/) {
        return undef if length $2 > 8;
        return sprintf '%s%0*X%s', $1, length $2, hex($2) + 1, $3;
    }
    return $1 + 1 . $2 if $number =~ /^(\d+)((?:\.\d+)?(?:[eE][-+]?\d+)?[uUlLfFzZ]*)$/ && length $1 < 16;
    return undef;
}

# What can be changed in a source: kind, offset, length, other text, line, whether it is for another system.
sub Changes {
    my ($file) = @_;
    my $text = Read($file);
    my @tokens = Tokens($text);
    my @changes;
    my @lineStarts = (0);
    push @lineStarts, pos $text while $text =~ /\n/g;
    my $lineOf = sub {
        my ($low, $high) = (0, $#lineStarts);
        while ($low < $high) {
            my $middle = int(($low + $high + 1) / 2);
            if ($lineStarts[$middle] <= $_[0]) { $low = $middle } else { $high = $middle - 1 }
        }
        return $low;
    };
    # What is written for another system is not built here.
    my @elsewhere;
    push @elsewhere, [$-[0], $+[0]] while $text =~ /^#ifdef _WIN32\n.*?^#(?:else|endif)/gms;
    my %rows; # tokens of a line
    for my $token (@tokens) {
        push @{$rows{$lineOf->($token->[1])}}, $token;
    }
    for my $i (0 .. $#tokens) {
        my ($kind, $start, $token) = @{$tokens[$i]};
        my $line   = $lineOf->($start);
        my $before = $i > 0 ? $tokens[$i - 1][2] : '';
        my $after  = $i < $#tokens ? $tokens[$i + 1][2] : '';
        my $whole  = substr $text, $lineStarts[$line], ($lineStarts[$line + 1] // length $text) - $lineStarts[$line];
        next if $whole =~ /\.reserve\(|static_assert|^template|^using /;
        my $isElsewhere = grep { $start > $_->[0] && $start < $_->[1] } @elsewhere;
        my $add = sub {
            push @changes, [$_[0], $start, length $token, $_[1], $line + 1, $isElsewhere] if defined $_[1];
        };
        if ($kind eq 'text') {
            $add->('text', OtherText($token));
        } elsif ($kind eq 'letter') {
            $add->('letter', "'" . NextLetter($1) . "'") if $token =~ /^'([A-Za-z0-9])'$/;
        } elsif ($kind eq 'number') {
            $add->('number', OtherNumber($token));
        } elsif ($kind eq 'word') {
            if ($otherWord{$token} && ($token !~ /^m/ || $before eq '::')) {
                $add->('word', $otherWord{$token});
            } elsif ($file =~ /_tables\w*\.cpp$/ && $whole =~ /^\s+\{/) {
                my $row  = $rows{$line};
                my $next = $rows{$line + 1} // [];
                my ($column) = grep { $row->[$_][1] == $start } 0 .. $#$row;
                if (@$row == @$next && $next->[$column][0] eq 'word' && $next->[$column][2] ne $token) {
                    $add->('cell', $next->[$column][2]);
                }
            }
        } elsif ($kind eq 'sign') {
            my $around = substr($text, $start - 1, 1) . substr($text, $start + length $token, 1);
            if ($token eq '-' && $around =~ /\S$/ && $before =~ /^[\[({,=?:<>]=?$|^return$|^==$/) {
                $add->('sign', '');
            } elsif ($token eq '!' && $after ne '=') {
                $add->('sign', '');
            } elsif ($token =~ /^(\+\+|--)$/) {
                $add->('sign', $otherSign{$token});
            } elsif ($otherSign{$token} && $around =~ /^\s\s$/ && "$before$after" !~ /"/) {
                $add->($token =~ /[<>=]/ && $token !~ /^[-+]=/ ? 'bound' : 'sign', $otherSign{$token});
            }
        }
    }
    return @changes;
}

# Runs a command with a time limit; true where it succeeds. Its output goes to the log.
sub Succeeds {
    my ($seconds, @command) = @_;
    my $log = "$build/mutant.log";
    my $child = fork // die "fork: $!\n";
    if (!$child) {
        open STDOUT, '>', $log or die "$log: $!\n";
        open STDERR, '>&', \*STDOUT or die "$log: $!\n";
        exec 'sh', '-c', "ulimit -v $memoryLimit; ulimit -t $seconds; exec timeout -k 2 $patience \"\$@\"", 'sh', @command;
        die "sh: $!\n";
    }
    waitpid $child, 0;
    my %ended = map { $_ => 1 } 124, 137, 152; # by the patience or by the processor time
    return $ended{$? >> 8} ? undef : $? == 0;
}

sub Builds {
    local $ENV{CCACHE_READONLY} = 1; # what is put back is found there, mutants are not kept
    return Succeeds(900, 'ninja', '-C', $build, '-j1', @_);
}

# The name of a built target's program, with what it is called with.
sub UnitTest {
    my ($name) = @_;
    my @command = ("$build/bin/$name", '--gtest_fail_fast', '--gtest_brief=1');
    push @command, '--gtest_filter=-KilledLoad.*' if $name eq 'world_loader_tests';
    return @command;
}

# survived, or the test that noticed. Builds no more than the next test needs.
sub Fate {
    my ($library, $file) = @_;
    my @own = @{$unitTests{$library}};
    for my $test (@own) {
        Builds($test) or return ('did not compile', $test);
        my $passed = Succeeds($firstTimeOut, UnitTest($test));
        return ('timed out', $test) unless defined $passed;
        return ('killed', $test) unless $passed;
    }
    Builds('quernfield-scenario') or return ('did not compile', 'quernfield-scenario');
    my ($name) = $file =~ m{([^/]+)$};
    my ($stem) = $name =~ m{^([a-z]+)};
    my ($row)  = grep { $name =~ $_->[0] } @scenarioBeginnings;
    my $first  = join '|', map { quotemeta } @{$row ? $row->[1] : [$stem]};
    my $second = join '|', map { quotemeta } @{$scenariosOf{$library}};
    my (@first, @rest);
    for my $scenario (sort glob "$tree/tests/scenarios/*.qfs") {
        if ($scenario =~ m{/(?:$first)[^/]*$}) {
            push @first, $scenario;
        } elsif (@{$scenariosOf{$library}} && $scenario =~ m{/(?:$second)[^/]*$}) {
            push @rest, $scenario;
        }
    }
    for my $group (\@first, \@rest) {
        next unless @$group;
        my $passed = Succeeds($timeOut, "$build/bin/quernfield-scenario", '--stop', @$group);
        return ('timed out', 'scenarios') unless defined $passed;
        if (!$passed) {
            my ($which) = Read("$build/mutant.log") =~ m{([^/\s]+\.qfs:\d+)};
            return ('killed', $which // 'scenarios');
        }
    }
    my %own = map { $_ => 1 } @own;
    for my $test (grep { !$own{$_} } sort map { @$_ } values %unitTests) {
        Builds($test) or return ('did not compile', $test);
        my $passed = Succeeds($firstTimeOut, UnitTest($test));
        return ('timed out', $test) unless defined $passed;
        return ('killed', $test) unless $passed;
    }
    return ('survived', '');
}

# Puts back what a run that was ended has left changed.
my $saved = "$build/mutated-file";
sub Restore {
    return unless -e "$saved.path";
    my $file = Read("$saved.path");
    Write($file, Read($saved));
    unlink "$saved.path";
}

sub Try {
    my ($mutant) = @_;
    my ($library, $file, $change) = @$mutant;
    my ($kind, $start, $length, $other) = @$change;
    my $text = Read($file);
    Write($saved, $text);
    Write("$saved.path", $file);
    my $mutated = $text;
    substr($mutated, $start, $length) = $other;
    Write($file, $mutated);
    my @fate = Fate($library, $file);
    Restore();
    return @fate;
}

$SIG{INT} = $SIG{TERM} = sub { Restore(); exit 1 };
Restore();

# All that can be changed, tables and code apart, in an order that the seed gives.
my (@cells, @code);
for my $source (Sources()) {
    my ($library, $file) = @$source;
    my $isTable = $file =~ /_tables\w*\.cpp$/;
    push @{$isTable ? \@cells : \@code}, map { [$library, $file, $_] } Changes($file);
}
srand $seed;
for my $list (\@cells, \@code) {
    for (my $i = $#$list; $i > 0; --$i) {
        my $j = int rand($i + 1);
        @$list[$i, $j] = @$list[$j, $i];
    }
    @$list = grep { !$_->[2][5] } @$list;
}
printf "%d cells of tables and %d places of code can be changed\n", scalar @cells, scalar @code;

sub Name {
    my ($mutant) = @_;
    my ($library, $file, $change) = @$mutant;
    my ($kind, $start, $length, $other, $line) = @$change;
    my $was = substr Read($file), $start, $length;
    my $column = $start - (rindex(substr(Read($file), 0, $start), "\n") + 1) + 1;
    return sprintf "%s:%d:%d\t%s\t%s -> %s", $file =~ s{^\Q$tree\E/}{}r, $line, $column, $kind, $was,
        $other eq '' ? 'nothing' : $other;
}

# The report has a line for each: place, kind, change, fate, test, seconds. The last line of a mutant is valid.
my %fates;
if (-e $report) {
    for (split /\n/, Read($report)) {
        my @columns = split /\t/, $_, -1;
        $fates{join "\t", @columns[0 .. 2]} = $columns[3] if @columns >= 5;
    }
}

sub Record {
    my ($mutant, $name) = @_;
    my $begin = time;
    my ($fate, $test) = Try($mutant);
    open my $stream, '>>', $report or die "$report: $!\n";
    printf $stream "%s\t%s\t%s\t%d\n", $name, $fate, $test, time - $begin;
    close $stream or die "$report: $!\n";
    printf "%s\t%s\t%s\n", $name, $fate, $test unless $fate eq 'killed';
    $fates{$name} = $fate;
    return $fate;
}

if ($wanted eq 'survivors') {
    for my $mutant (@cells, @code) {
        my $name = Name($mutant);
        Record($mutant, $name) if ($fates{$name} // '') eq 'survived';
    }
} else {
    # One of each in turn; what does not compile is no mutant, and the next takes its place.
    my $counted = 0;
    my @turns   = (\@cells, \@code);
    while ($counted < $wanted && (@cells || @code)) {
        my $list = $turns[$counted % 2];
        $list = $turns[($counted + 1) % 2] unless @$list;
        my $mutant = shift @$list;
        my $name   = Name($mutant);
        my $fate   = $fates{$name} // Record($mutant, $name);
        ++$counted unless $fate eq 'did not compile';
    }
}

my %count;
++$count{$_} for values %fates;
printf "%d killed, %d timed out, %d survived; %d did not compile\n",
    map { $count{$_} // 0 } 'killed', 'timed out', 'survived', 'did not compile';
