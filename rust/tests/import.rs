// SPDX-License-Identifier: MIT

use columnimport::{likely_delimiter, propose, Column, Error, Match, Options, Origin, Source};

fn found(name: &[u8], position: usize, field: usize, origin: Origin) -> Option<Match> {
    let (position, field) = (Some(position), Some(field));
    Some(Match {
        name: name.to_vec(),
        position,
        field,
        origin,
        score: None,
    })
}

#[test]
fn names_lead_to_matches() {
    let with_word = Column {
        alternatives: vec!["RL".into()],
        ..Column::from("elevation")
    };
    let exact = Column {
        similar: false,
        ..Column::from("hole")
    };
    let saved = Column {
        saved: Some(b"b".to_vec()),
        ..Column::from("dip")
    };
    let cases: [(Column, &[&[u8]], Option<Match>); 6] = [
        (
            "holename".into(),
            &[b"BHID"],
            found(b"BHID", 0, 0, Origin::Synonym),
        ),
        (
            with_word,
            &[b"x", b"rl"],
            found(b"rl", 1, 1, Origin::Alternative),
        ),
        ("a_b".into(), &[b"a\0b"], found(b"a\0b", 0, 0, Origin::Same)),
        (
            "plong_e".into(),
            &[b"plong\xE9e"],
            found(b"plong\xE9e", 0, 0, Origin::Same),
        ),
        (saved, &[b"dip", b"b"], found(b"b", 1, 1, Origin::Saved)),
        (exact, &[b"holes"], None),
    ];
    for (column, names, expected) in cases {
        let result = propose(&[column], &Source::Table(names), &Options::default()).unwrap();
        assert_eq!(result.matches, [expected]);
    }
}

#[test]
fn a_guess_has_a_score() {
    let source = Source::Table(&[b"holes"]);
    let result = propose(&["hole".into()], &source, &Options::default()).unwrap();
    let guess = result.matches[0].as_ref().unwrap();
    assert_eq!(guess.origin, Origin::Similar);
    assert!(guess.score.unwrap() > 0.4);
}

#[test]
fn a_file_is_read_as_it_is_told() {
    let path = std::env::temp_dir().join(format!("columnimport-{}.csv", std::process::id()));
    std::fs::write(&path, "\"HOLE; m\";DIP\n").unwrap();
    let path_text = path.to_str().unwrap();
    assert_eq!(likely_delimiter(path_text), Ok(Some(b';')));
    let options = Options {
        delimiter: b';',
        ..Options::default()
    };
    let by_name = propose(&["dip".into()], &Source::File(path_text), &options).unwrap();
    assert_eq!(by_name.matches, [found(b"DIP", 2, 1, Origin::Same)]);
    assert_eq!(by_name.source_columns, [&b"HOLE"[..], b"m", b"DIP"]);
    let options = Options {
        titles: false,
        ..options
    };
    let by_position = propose(&["dip".into()], &Source::File(path_text), &options).unwrap();
    assert_eq!(
        by_position.matches,
        [found(b"Column1", 0, 0, Origin::InOrder)]
    );
    assert_eq!((by_position.delimiter, by_position.titles), (b';', false));
    std::fs::remove_file(&path).unwrap();
    assert_eq!(likely_delimiter(path_text), Ok(None));
    let gone = propose(&["dip".into()], &Source::File(path_text), &options).unwrap();
    assert_eq!(gone.matches, [None]);
    assert!(gone.problem.unwrap().contains("No such file"));
}

#[test]
fn wrong_arguments_are_refused_in_a_sentence() {
    let refused = propose(&["a\0".into()], &Source::Table(&[]), &Options::default());
    assert!(matches!(&refused, Err(Error::WrongUse(sentence)) if sentence.contains("zero")));
    assert!(matches!(likely_delimiter("\0"), Err(Error::WrongUse(_))));
}

#[cfg(feature = "dialogs")]
#[test]
fn without_a_display_no_dialog_is_shown() {
    use columnimport::{show, Window};
    let source = Source::Table(&[b"DIP"]);
    for window in [Window::None, Window::X11(1)] {
        let refused = show(&["dip".into()], &source, window, &Options::default());
        assert!(matches!(&refused, Err(Error::NoDisplay(sentence)) if !sentence.is_empty()));
    }
    let elsewhere = std::thread::spawn(move || {
        show(&["dip".into()], &source, Window::None, &Options::default())
    });
    assert!(matches!(elsewhere.join().unwrap(), Err(Error::WrongUse(_))));
}
