<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>サービスへの接続に</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>成功しました</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>サービスに接続</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>できませんでした</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>このページは閉じてかまいません</translation>
    </message>
</context>
<context>
    <name>AudioListWidget</name>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>追加を中止</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>音声を追加</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>音声を追加 (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>スライドショーの終わりまでプレイリストを繰り返します。</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>オフセット</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>選択した音声ファイルのオフセットを選びます。負の値では、音声ファイルは指定した時間だけずれてすぐに始まります。正の値では、音声ファイルは指定した時間の位置から再生されます。</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>フェード</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>音声トラックのフェードの長さを選びます。0 はフェードなしです。</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
</context>
<context>
    <name>BurnDialog</name>
    <message>
        <source>Device:</source>
        <translation>ドライブ:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>ドライブとディスクをもう一度探す</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>ディスクのタイトル:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>ディスクのタイトル</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>ディスクをファイナライズ</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>ファイナライズしたディスクには、それ以上データを書き込めません。ほとんどの DVD プレーヤーで必要です。</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>DVD に書き込む</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>ディスクは空ではありません</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>ディスクを消去してから書き込む</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>ディスクの内容に動画を追加する</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>書き込まずに戻る</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>ディスクに書き込み中</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>書き込みの進行状況</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>経過時間:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>書き込みを中止</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>書き込みの結果:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>作成エラー</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>動画ファイルの名前</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>動画ファイルの形式</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>動画の進行状況</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>経過時間: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>残り時間: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>ウィンドウを表示</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>ファイル名を入力してください。</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>ファイル名がディスクには長すぎます。</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>ファイル名に次の文字は使えません: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>変換が完了しました</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>おめでとうございます。すべてのファイルがフォルダーにあります。開いてご覧ください。</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>動画をこのサービスにアップロード</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>DVD に書き込む</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>動画をディスクに書き込む</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>履歴が大きくなりすぎました。</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>完成した動画</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>削除したものを元に戻す (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>この通知を閉じる</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>プロジェクトを再開</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>選択した動画のプロジェクトをエディターで開く</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>DVD に書き込む</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>選択した動画をディスクに書き込む</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>選択した動画をサービスにアップロード</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>アップロードの進行状況</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>接続中 ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>ブラウザーで開いたページでサインインしてください。</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>サービスに接続できません。</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>サービスとの接続が切れました。</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>サービスとの接続が安全ではありません。</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>サービスが応答しません。</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>サービスの応答を理解できません。</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>は読み取れる画像ではありません</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>は壊れているか不完全です</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>は存在しません</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>はフォルダーです</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>は開けません</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>は空です</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>は大きすぎます</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>は大きすぎます (%1 x %2 ピクセル)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>ファイルが %1 MB を超えています。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>フォルダー「%1」はもうありません。</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>フォルダー「%1」を表示するプログラムがありません。</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>フォルダーを追加</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>フォルダーを読み取れません。</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>プロジェクト名に次の記号は使えません: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>動画のタイトル</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>設定を閉じる</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>保存せずに閉じる (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>スライドショーの既定の設定:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>新しいスライドの表示時間</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>切り替え</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>新しいスライドの現れ方</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>切り替え時間</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>各切り替えの長さ</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>新しいスライドショーの画面サイズ</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>画面に合わせる</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>小さい写真を画面いっぱいに拡大する</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>元の縦横比</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>写真を引き伸ばさず、形を保つ</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>音声の既定の設定:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>オフセット</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>音楽が始まる時</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>フェード</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>音楽のフェードの長さ</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>書き出しオプション:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>動画を書き込むフォルダー</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>フォルダーを選ぶ</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>出力プロファイル</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>「元の品質」は細部まで保ちます。「どこでも再生」は、テレビや携帯電話でも再生できる小さいファイルを作ります。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>プログラムの言語</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>作成を速くする</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>2 枚のスライドを同時に作成する</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>更新を自動的に確認する</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>匿名の使用統計を送信する</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>プログラムの改善に役立ちます。名前、写真、文章は送信されません。</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>設定を保存 (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>スライド</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>写真をシャッフル</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>写真を並べ替え</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>写真を回転</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>写真を左に回転</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>スライドを削除</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>タイトルスライドを再び表示</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>すべて変更:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>すべてのスライドの時間</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>すべてのスライドの切り替え</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>スライドショーの内訳を表示</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>リストを消去</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>スライドに戻る (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>スライドに戻る</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>文字:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>ここに文字</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>タイトルスライドも</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>文字の設定:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>文字が現れる効果</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>文字の現れ方を表示 (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>文字の現れ方を表示</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>文字の位置:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>文字の位置</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>スライドの画像</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>スライドを元のままにする (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>文字を保存</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>保存 (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>写真を追加</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>最後の動画のフォルダーを開く</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>ピクセル化</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>モザイクらせん (内へ)</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>モザイクらせん (外へ)</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>モザイク (帯)</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>モザイク (壁)</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>チェッカーボード</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>回転して退場</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>回転して登場</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>裏返し</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>ワイプ (左から右)</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>ワイプ (右から左)</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>ワイプ (上から下)</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>ワイプ (下から上)</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>縦ワイプ (内へ)</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>縦ワイプ (外へ)</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>横に伸ばす</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>縦に伸ばす</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>ズームイン</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>ズームアウト</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>下からスライド</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>左からスライド</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>右からスライド</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>上からスライド</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>左上からスライド</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>黒へフェード</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>クロスフェード</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>白へフェード</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>エラーによりアップロードが中止されました</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>アップロードが完了しました</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>おめでとうございます。ファイルを %1 にアップロードしました。</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ValueLists</name>
    <message>
        <source>%1 sec</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>VideoDialog</name>
    <message>
        <source>Picture of the video</source>
        <translation>動画の映像</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>動画の位置 (矢印キー)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>動画の位置</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>一時停止 (スペース)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (スペース)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>全体のプレビュー</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>プレビュー画像</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>プレビューの位置 (矢印キー)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>プレビューの位置</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (スペース)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>消音 (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>消音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>全画面 (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>全体を再生</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>スライドショー全体を再生</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>切り替えを再生</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>選択したスライドへの切り替えを再生</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>スライドショーの解像度を選びます</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>切り替え時間</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>切り替え効果の長さを選びます。現在のスライドショーのすべての切り替えに適用されます</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>画像を画面に合わせるには、チェックを付けたままにします。外すと元のサイズのままです。</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>画面に合わせる</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>写真の縦横比を保つには、チェックを付けたままにします。外すと選んだ解像度に引き伸ばされます。</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>元の縦横比</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>音声が含まれていません。</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>音声形式「%1」には対応していません。</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1、読み取れません</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1、長さ %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>音声ファイル (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>追加中: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>追加中 ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>試聴中</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 を再生できません: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>ここに音声ファイルをドロップ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>試聴を停止</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>試聴</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>合計: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>音声ファイルの追加</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>追加できなかった音声ファイルがあります</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>試聴 (スペース)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>停止 (スペース)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>削除 (Del)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>元のファイルが見つかりません</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>元のファイルを読み取り用に開けません</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>操作はキャンセルされました</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>認証エラー</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>サインインページを表示するプログラムがありません。</translation>
    </message>
</context>
<context>
    <name>velmora::BurnDialog</name>
    <message>
        <source>%1 (%2 - %3 %4)</source>
        <translation>%1 (%2 - %3 %4)</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>空き</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>DVD に書き込む</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>マイスライドショー</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>ドライブを探しています…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>ディスクに書き込めるドライブが見つかりません。</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>ディスクを調べています…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>ディスクの準備ができていません</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>ディスクの空き容量がスライドショーに足りません</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>ディスクは空ではありません。書き込む前に消去しますか?
「はい」: 消去してから書き込みます。
「いいえ」: 新しいファイルを追加で書き込みます。
「キャンセル」: 操作を中止します。</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>ディスクは空ではありません。書き込む前に消去しますか?
「はい」: 消去してから書き込みます。
「キャンセル」: 操作を中止します。</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>書き込みを中止したディスクは使えなくなることがあります。中止しますか?</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>動画はディスクに書き込まれました。</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>動画はディスクに書き込まれませんでした。コンピューターのファイルは元のままです。</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>中止して元のままにする</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>薄い灰色</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>濃い灰色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>濃い赤</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>砂色</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>ライム</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>水色</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>空色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>その他 ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>このスライド、または選択したすべてのスライドに設定</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>作成プログラム %1 を起動できません: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>作成プログラムが予期せず終了しました。</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>ファイル名「%1」に改行が含まれています。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>動画を作成</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>スライドショー全体を再生</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>動画を作成できません</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>動画は完成しましたが、履歴に追加できませんでした: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>経過時間: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>残り時間: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>動画を仕上げています</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>動画を作成中 (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>動画のファイル名が必要です。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>フォルダー %1 は存在せず、作成もできません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>フォルダー %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>動画を保存できません</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>設定で別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>動画を置き換える</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>ファイル %1 は既に存在します。置き換えますか?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>置き換える</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>フォルダー %1 を作成できません。</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>保存されていない変更</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>「%1」への変更を保存しますか?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>プログラムを閉じる</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>動画を作成中です。今プログラムを閉じると失われます。</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>動画をアップロード中です。今プログラムを閉じると完了しません。</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>中止して閉じる</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>スライドショーを復元</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>「%1」を保存する前にプログラムが終了しました。復元しますか?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>スライドショーを開く</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>ファイル「%1」はスライドショーとして開けません。</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>スライドショー (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>スライドショーを保存</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>スライドショーを「%1」に保存できません。</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>元のファイルが見つかりません</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>元のファイルを読み取り用に開けません</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>サービスの応答を理解できません。</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>操作はキャンセルされました</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>プレビューと設定</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg が見つかりません。インストールしてください (Debian と Ubuntu: sudo apt install ffmpeg)。</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) は古すぎます。バージョン 4.4 以降をインストールしてください (Debian と Ubuntu: sudo apt install ffmpeg)。</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>FFmpeg が見つかりません。FFmpeg は Velmora に付属しています。Velmora を再インストールするか、Velmora のフォルダーに ffmpeg.exe を置いてください。</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) は古すぎます。Velmora を再インストールするか、Velmora のフォルダーにバージョン 4.4 以降の ffmpeg.exe を置いてください。</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>ファイルを開く際のエラー</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>ファイル「%1」が見つかりません</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>「%1」のフォルダーを表示するプログラムがありません。</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>%1x%2 ピクセルの画像を圧縮できません。</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>一時フォルダー「%1」を作成できません: %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>「%1」のヘルプ</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>動画を作成、または文字を保存</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>スライドショー全体をプレビュー</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>プレビューを再生または一時停止</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>プレビューを消音</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>保存せずに終了</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>写真から動画へ</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. ボタンを使うか、ウィンドウにドロップして、写真やフォルダーを追加します。</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. ドラッグして並べ、時間と切り替えを選びます。</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. スライドに文字を、スライドショーに音楽を加え、プレビューを見ます。</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. 名前と形式を選び、「作成」を押します。</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. 履歴から動画を見たり、アップロードしたり、ディスクに書き込んだりします。</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>エディター内</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>マニュアルを開く</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>プレビューを戻す</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>プレビューを進める</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>プレビューを全画面で表示</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>テキストの効果を再生</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>ホームページ</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>このプログラムにはホームページが設定されていません。</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>この列で並べ替え</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>リストを並べ替えます</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>完成したスライドショーがここに表示されます。</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryRowWidget</name>
    <message>
        <source>%1:%2:%3</source>
        <translation>%1:%2:%3</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Open the project in the editor</source>
        <translation>プロジェクトをエディターで開く</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>動画を再生</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>動画をディスクに書き込む</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>動画を履歴から削除</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>動画ファイルはもうありません。</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>ファイルを開く際のエラー</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>ファイル「%1」が見つかりません</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>ファイル「%1」を再生するプログラムがありません。</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>履歴から削除</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>「%1」を履歴から削除しますか?</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>動画ファイルもごみ箱に移動する</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>履歴を消去</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>%n 本の動画をすべて履歴から削除しますか?</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>動画ファイルもごみ箱に移動する</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>一部の動画ファイルをごみ箱に移動できませんでした。元の場所にあります。</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>一部の動画ファイルをごみ箱から戻せませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>%n 本の動画を履歴から削除しました。</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>履歴を変更できませんでした: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>経過: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>%1 を %2 にアップロード中</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>%1 に接続</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>ほかに %n 個のファイルを使用できません。</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>動画の素材である「%1」が動画で置き換えられてしまいます。別の名前を選んでください。</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>フォルダー「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>写真「%1」は存在しません。</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>「%1」は対応する形式の写真ではありません。</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>フォルダー「%1」に写真がありません。</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>音声ファイル「%1」は存在しません。</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>「%1」は対応する形式の音声ファイルではありません。</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>フォルダー「%1」に音声ファイルがありません。</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>新しいスライドショー</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>開く ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>名前を付けて保存 ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>動画のタイトルを設定 ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>写真を追加</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>ホームページ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>動画が完成しました</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>アップロードに失敗しました</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>アップロードが完了しました</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>別の動画をアップロード中です。</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>音声を追加</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>写真をまだ追加しています</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>音声ファイルをまだ追加しています</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>写真をまだ並べ替えています</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>テキストをまだ編集しています</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>プロジェクトを「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>「velmoratool --help」で使い方が表示されます。</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>「%1」は %2 から %3 の整数ではありません。</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>文字が空です。</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>「%1」は 1920x1080 のようなサイズではありません。</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>切り替え「%1」はありません。使えるもの: %2。</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>「%1」は name、date、given のいずれでもありません。</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>「%1」は original でも everywhere でもありません。</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>動画の名前「%1」の末尾は次のいずれかにしてください: %2。</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>ファイル名が空です。</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>「%1」はどのオプションにも属しません。</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>オプション --%1 はありません。</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 は値を取りません。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 には値が必要です。</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 は独自の値を持つ --project と一緒に使えません。</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>--photos または --project が必要です。</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>--output が必要です。</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch と --original-size は同時に使えません。</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>プロジェクト「%1」は使用できません: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>音声も動画も含まれていません。</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>壊れているか、メディアファイルではありません。</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>プレイリストであり、メディアファイルではありません。</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>元のファイルを読み取り用に開けません</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>動画のアップロードエラー:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>プロジェクトに書き込む動画ファイルの名前がありません。</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>完成した動画を「%1」に置けませんでした: %2。</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>動画は「%1」として残してあります。</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>動画の名前「%1...」は長すぎます。もっと短い名前を選んでください。</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>動画のフォルダー「%1」が存在しません。</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>動画を「%1」に書き込めません: フォルダーではありません。</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>動画を「%1」として書き込めません: 同じ名前のフォルダーがあります。</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>動画を「%1」に書き込めません: ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>動画を「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>別の処理が現在「%1」に書き込んでいます。</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>は存在しません</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>は写真ではありません</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>は読み取れません</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>には写真がありません</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>写真を追加中: %n 枚を確認</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>写真を追加中</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>%n 個のファイルを追加できませんでした</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>中央上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>中央左</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>中央右</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>中央下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 経過</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>%1 経過、残り %2</translation>
    </message>
    <message>
        <source>%1 %, %2</source>
        <translation>%1 %、%2</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectEditor</name>
    <message>
        <source>Add photos</source>
        <translation>写真を追加</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>スライドを削除</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>タイトルスライドを隠す</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>スライドを移動</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>時間を変更</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>切り替えを変更</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>写真を回転</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>文字を変更</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>文字のスタイルを変更</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>タイトルスライドを変更</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>音声を追加</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>音声を削除</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>音声を移動</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>音声のオフセットを変更</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>音声のフェードを変更</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>音声を繰り返す</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>解像度を変更</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>形式を変更</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>元の縦横比</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>画面に合わせる</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>切り替え時間を変更</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>写真を並べ替え</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>写真をシャッフル</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>写真の場所を指定</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>新しいプロジェクト</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>ファイルは有効な JSON 文書ではありません: %1。</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>ファイルはプロジェクト文書ではありません。</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>プロジェクト文書は使用できません。誤ったフィールド: %1。</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>マイスライドショー</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>オープニング</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>存在しないファイルがあります</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>存在しないファイルがあります。プロジェクトを再開しますか?</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>再開</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>フォルダー「%1」のあるディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>写真「%1」%2。</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>音声ファイル「%1」は使用できません: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>スライドショーにスライドがありません。</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>%1x%2 ピクセルの動画は小さすぎます。各辺は %3 以上必要です。</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>キャンセルしました。動画は書き込まれていません。</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>動画が完成しました: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>プロジェクトが完成しました: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>動画のタイトルを設定</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>元の品質</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>どこでも再生</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>バージョン %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>フォルダーを選ぶ</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>設定をファイル %1 に書き込めないため、プログラムの終了まで有効です。</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>写真を回転</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>写真を左に回転</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>写真をシャッフル</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>写真を名前で並べ替え</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>写真を撮影日で並べ替え</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>文字を編集</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>すべてのスライドの文字スタイルを編集</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>時間を設定</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>切り替えを設定</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>切り替えをプレビュー</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>場所を指定 ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>タイトルスライドを再び表示</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>スライドを削除</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>リストを消去</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>an action and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>velmora::SlidePictures</name>
    <message>
        <source>The photo '%1' cannot be read.</source>
        <translation>写真「%1」を読み取れません。</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>写真の日付を読み取り中</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>ここに写真やフォルダーをドロップ</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>切り替え</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>タイトルスライドは動画に含まれません。</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>写真 %1 はもうありません。</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>場所を指定 ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>このスライドの文字を編集 (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>このスライドを削除 (Del)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>タイトルスライドを再び表示</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>ファイルを選び直す</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>動画に含まれません</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>タイトルスライド</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>見つかりません: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>ここに写真やフォルダーをドロップ</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>写真を並べ替え</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>リストを消去 (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>複数</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>合計: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>%1 はどこですか?</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>写真: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>再生時間: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>音声ファイル: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>解像度: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>再生できる内容がありません。</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>音楽ファイル「%1」を読み取れません: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>プレビューを準備中</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>読み込み中</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>ここに写真をドロップ</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>写真やフォルダー全体が、切り替え、タイトル、音楽付きのスライドショーになります。</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>写真を追加</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>スライドショーを開く</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>サンプル写真を試す</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>%1 を続ける</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>最後のスライドショーをもう一度開く</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>保存したスライドショーを開く</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>写真をスライドショーに追加</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>フォルダーの写真をすべて追加</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>付属の写真でスライドショーを始める</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>「オープニング」スライドのスタイルを編集</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>すべてのスライドのスタイルを編集</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>「%1」スライドのスタイルを編集</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>ここに文字</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>変更を破棄</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>この文字の変更は保存されていません。破棄しますか?</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>編集を続ける</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>スライドショーに戻る</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>写真をスライドショーに追加</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>フォルダーの写真をすべて追加</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>これまでに作成したスライドショーを表示</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>新しいスライドショーの初期設定を変更</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>ヘルプとキーボードショートカット</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>最後のスライドショー: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>起動できませんでした。</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>予期せず終了しました。</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>コード %1 で終了しました。</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>更新があります!</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>プログラムの新しいバージョンがあります:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>詳しく見る:</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>新機能</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>%1 へのアップロードは設定されていません。サービスのアドレスと登録情報はファイル「%2」に記入します。</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>ファイルをブラウザーで表示します</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>写真を追加すると、ここにスライドショーが表示されます</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>スライド %1 への切り替えをプレビュー</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>全体のプレビュー</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>一時停止 (スペース)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (スペース)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>音を出す (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>消音 (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>エンコーダーが失敗しました: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>エンコーダーは %1 に何も書き込みませんでした。</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>エンコードするフレームがありません。</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>動画の一部 %1 がありません。</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>このプログラムの隣にプログラム「transcoder」がありません。</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>音楽ファイル「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>ファイル「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>再生できる内容がありません。</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>同じ名前の古いファイルを置き換えられません。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>サービスのサインインページ</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>認証エラー</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>作成プロセスには --session_id、--cache、--request だけが必要です。</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>要求「%1」は使用できません: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>このプログラムではビデオをアップロードできません。サービスにサインインするための部品 (Qt NetworkAuth) なしで作成されています。</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>このプログラムでは、このシステムでディスクに書き込むことはできません。</translation>
    </message>
</context>
</TS>